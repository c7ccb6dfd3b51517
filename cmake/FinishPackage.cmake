# cpack runs this on the installed trees before it packs them: adds licences and changes, compresses what Debian wants
# compressed, and sets the times of files, so that equal contents make equal packages.
set(source "${CPACK_WQSPCFG_SOURCE_DIR}")
set(owners
    "WQSpCfg ${CPACK_PACKAGE_VERSION}

Copyright (C) 2026, the owners of WQSpCfg.
License: proprietary, all rights reserved by its owners.
")

# Runs a command whose failure ends the packing, and puts its output into `out`.
function(run out)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(${out} "${output}" PARENT_SCOPE)
endfunction()

# Puts the licence of a Debian package whose code the program contains into `out`.
function(licence out package)
    set(file "/usr/share/doc/${package}/copyright")
    if(NOT EXISTS "${file}")
        message(FATAL_ERROR "${file} is missing, the licence of what is packed: install the package ${package}")
    endif()
    file(READ "${file}" text)
    set(${out} "${text}" PARENT_SCOPE)
endfunction()

# Puts CHANGELOG.md into `out` in the form of a Debian changelog.
function(debian_changelog out package)
    # As a list of lines; brackets and semicolons mean something in lists.
    file(READ "${source}/CHANGELOG.md" text)
    string(REPLACE ";" "\\;" text "${text}")
    string(REGEX REPLACE "[][]" "'" text "${text}")
    string(REPLACE "\n" ";" text "${text}")
    set(changes "")
    set(trailer "")
    foreach(line IN LISTS text)
        if(line MATCHES "^## ([0-9.]+) \\(([0-9]+-[0-9]+-[0-9]+)\\)$")
            set(version ${CMAKE_MATCH_1})
            run(date env LC_ALL=C date --utc --rfc-email --date=${CMAKE_MATCH_2})
            string(APPEND changes "${trailer}${package} (${version}) unstable; urgency=medium\n\n")
            set(trailer "\n -- ${CPACK_PACKAGE_CONTACT}  ${date}\n\n")
        elseif(line MATCHES "^- (.+)$")
            string(APPEND changes "  * ${CMAKE_MATCH_1}\n")
        elseif(line MATCHES "^  (.+)$")
            string(APPEND changes "    ${CMAKE_MATCH_1}\n")
        endif()
    endforeach()
    string(FIND "${changes}" "${package} (${CPACK_PACKAGE_VERSION}) " at)
    if(NOT at EQUAL 0)
        message(FATAL_ERROR "CHANGELOG.md does not begin with ${CPACK_PACKAGE_VERSION}: "
                            "add a section '## ${CPACK_PACKAGE_VERSION} (YYYY-MM-DD)'")
    endif()
    string(REGEX REPLACE "\n\n$" "\n" trailer "${trailer}")
    set(${out} "${changes}${trailer}" PARENT_SCOPE)
endfunction()

licence(cli11 libcli11-dev)
licence(json nlohmann-json3-dev)
if(CPACK_GENERATOR STREQUAL "DEB")
    foreach(component IN LISTS CPACK_COMPONENTS_ALL)
        string(TOUPPER "${component}" upper)
        set(package "${CPACK_DEBIAN_${upper}_PACKAGE_NAME}")
        set(docs "${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share/doc/${package}")
        set(copyright "${owners}")
        if(component STREQUAL "program")
            string(APPEND copyright "\nThe program contains CLI11:\n\n${cli11}\nand JSON for Modern C++:\n\n${json}")
        endif()
        file(WRITE "${docs}/copyright" "${copyright}")
        debian_changelog(changelog ${package})
        file(WRITE "${docs}/changelog" "${changelog}")
        file(GLOB_RECURSE manual_pages "${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share/man/*.[1-9]")
        run(ignored gzip --best --no-name "${docs}/changelog" ${manual_pages})
    endforeach()
else()
    set(docs "${CPACK_TEMPORARY_DIRECTORY}/doc")
    licence(mingw mingw-w64-common)
    licence(gcc gcc-mingw-w64-base)
    file(WRITE "${docs}/copyright.txt" "${owners}\nThe licences of what the program and the library contain are in licences/.\n")
    file(WRITE "${docs}/licences/CLI11.txt" "${cli11}")
    file(WRITE "${docs}/licences/nlohmann-json.txt" "${json}")
    file(WRITE "${docs}/licences/mingw-w64.txt" "${mingw}")
    file(WRITE "${docs}/licences/gcc.txt" "${gcc}")
    file(COPY "${source}/CHANGELOG.md" DESTINATION "${docs}")
endif()

run(ignored chmod -R u=rwX,go=rX "${CPACK_TEMPORARY_DIRECTORY}")
if(DEFINED ENV{SOURCE_DATE_EPOCH})
    run(ignored find "${CPACK_TEMPORARY_DIRECTORY}" -exec touch --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} {} +)
endif()
