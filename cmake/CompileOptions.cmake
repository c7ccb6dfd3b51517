set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

function(wqspcfg_compile_options target)
    target_compile_options(
        ${target}
        PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
                $<$<BOOL:${WQSPCFG_WERROR}>:-Werror>
                # GCC 12 warns wrongly about std::string in optimised code.
                $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
                -ffunction-sections -fdata-sections "-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=")
    if(WIN32)
        # As above, of short wide strings.
        target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overread)
        target_compile_definitions(${target} PRIVATE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601)
    elseif(NOT WQSPCFG_SANITIZE)
        # Not _FORTIFY_SOURCE: GCC 12 takes moves of short wide strings for overflows.
        target_compile_options(${target} PRIVATE -fstack-protector-strong)
    endif()
    target_compile_definitions(${target} PRIVATE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)
endfunction()

function(wqspcfg_link_options target)
    target_link_options(${target} PRIVATE -Wl,--gc-sections)
    if(WIN32)
        target_link_options(${target} PRIVATE -Wl,--no-insert-timestamp) # the same sources give the same bytes
    else()
        target_link_options(${target} PRIVATE -Wl,-z,relro,-z,now)
        if(NOT WQSPCFG_SANITIZE)
            target_link_options(${target} PRIVATE -Wl,--no-undefined)
        endif()
    endif()
endfunction()

# Precompiles those of the project's headers that exist, with the standard headers they are made of.
function(wqspcfg_precompile target)
    set(headers)
    foreach(header IN LISTS ARGN)
        if(EXISTS "${PROJECT_SOURCE_DIR}/${header}")
            list(APPEND headers "${PROJECT_SOURCE_DIR}/${header}")
        endif()
    endforeach()
    if(headers)
        target_precompile_headers(${target} PRIVATE ${headers})
    endif()
endfunction()

if(WQSPCFG_SANITIZE)
    add_compile_options(-fsanitize=${WQSPCFG_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${WQSPCFG_SANITIZE})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # The instrumentation hides initialisations from these.
        add_compile_options(-Wno-maybe-uninitialized -Wno-stringop-overflow -Wno-array-bounds -Wno-stringop-overread)
        if(WQSPCFG_SANITIZE MATCHES "thread")
            # It does not model fences; the one that there is orders reads of pages that other processes write.
            add_compile_options(-Wno-tsan)
        endif()
    endif()
endif()

if(WQSPCFG_FUZZ)
    # What the fuzz targets call is instrumented for coverage; each of them links the driver.
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
