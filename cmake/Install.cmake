# What is installed: headers below include/wqspcfg, both forms of the library, the program, and the files that let CMake
# (find_package(WQSpCfg), targets WQSpCfg::static and WQSpCfg::shared) and pkg-config find them. The components are those
# of the packages: runtime, development and program.
include(CMakePackageConfigHelpers)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/WQSpCfg)

# What a service provider or a tool writer includes. The package test compiles each of these by itself.
install(
    DIRECTORY src/wqspcfg
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    COMPONENT development
    FILES_MATCHING
    PATTERN "*.h"
    PATTERN "RegInfoSettings.h" EXCLUDE
    PATTERN "*Rows.h" EXCLUDE
    PATTERN "CardUnitFields.h" EXCLUDE
    PATTERN "OwnChanges.h" EXCLUDE
    PATTERN "Walk.h" EXCLUDE
    PATTERN "tools" EXCLUDE
    PATTERN "lmdb" EXCLUDE
    PATTERN "memory" EXCLUDE
    PATTERN "windows" EXCLUDE
    PATTERN "RegFileStore.h" EXCLUDE
    PATTERN "View32.h" EXCLUDE
    PATTERN "Posix*.h" EXCLUDE
    PATTERN "AtomicFile.h" EXCLUDE
    PATTERN "FlatKey.h" EXCLUDE
    PATTERN "FlatTransaction.h" EXCLUDE
    PATTERN "Record.h" EXCLUDE)

install(
    TARGETS wqspcfg_static wqspcfg_shared
    EXPORT WQSpCfgTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
if(TARGET wqspcfg)
    install(TARGETS wqspcfg RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
    if(NOT WIN32 AND NOT CMAKE_CROSSCOMPILING)
        install(FILES "${PROJECT_BINARY_DIR}/wqspcfg.1" DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT program)
        install(FILES "${PROJECT_BINARY_DIR}/wqspcfg.bash"
                DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
                COMPONENT program
                RENAME wqspcfg)
    endif()
endif()

install(EXPORT WQSpCfgTargets NAMESPACE WQSpCfg:: DESTINATION ${package_dir} COMPONENT development)
configure_package_config_file(cmake/WQSpCfgConfig.cmake.in "${PROJECT_BINARY_DIR}/WQSpCfgConfig.cmake"
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file("${PROJECT_BINARY_DIR}/WQSpCfgConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/WQSpCfgConfig.cmake" "${PROJECT_BINARY_DIR}/WQSpCfgConfigVersion.cmake"
              cmake/FindLMDB.cmake DESTINATION ${package_dir} COMPONENT development)

if(WIN32)
    set(private_libraries "-ladvapi32")
    set(static_flags "-DWQSPCFG_STATIC")
else()
    set(private_libraries "-llmdb -pthread")
    set(static_flags "")
endif()
# The prefix as seen from the file, so that the installed tree can be moved.
string(REGEX REPLACE "[^/]+" ".." libdir_to_prefix "${CMAKE_INSTALL_LIBDIR}")
configure_file(cmake/wqspcfg.pc.in "${PROJECT_BINARY_DIR}/wqspcfg.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/wqspcfg.pc" DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

# --- Pages -----------------------------------------------------------------------------------------------------------

if(WIN32)
    set(program_docs doc)
    set(development_docs doc)
else()
    set(program_docs ${CMAKE_INSTALL_DATADIR}/doc/wqspcfg)
    set(development_docs ${CMAKE_INSTALL_DATADIR}/doc/libwqspcfg-dev)
endif()
install(FILES docs/service-providers.md docs/stores.md docs/decisions.md DESTINATION ${development_docs}
        COMPONENT development)
install(FILES docs/diagnosis.md docs/stores.md docs/decisions.md DESTINATION ${program_docs} COMPONENT program)
install(DIRECTORY docs/reference DESTINATION ${program_docs} COMPONENT program)
install(FILES examples/CardDispenser.cpp examples/terminal.reg examples/faulty.reg DESTINATION ${program_docs}/examples
        COMPONENT program)
# The reference as one page for a browser. A cross build takes it from a build whose program runs here.
if(NOT CMAKE_CROSSCOMPILING)
    install(FILES "${PROJECT_BINARY_DIR}/reference.html" DESTINATION ${program_docs} COMPONENT program)
elseif(WQSPCFG_REFERENCE_PAGE)
    install(FILES "${WQSPCFG_REFERENCE_PAGE}" DESTINATION ${program_docs} COMPONENT reference EXCLUDE_FROM_ALL)
endif()
