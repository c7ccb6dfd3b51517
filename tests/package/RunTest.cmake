# Installs the build tree `build` below `work`, and builds and runs the consumer against what was installed.
function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(prefix "${work}/prefix")
file(REMOVE_RECURSE "${work}")
file(MAKE_DIRECTORY "${work}")
run(${CMAKE_COMMAND} --install "${build}" --prefix "${prefix}")

set(options "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_FIND_ROOT_PATH=${prefix}" -DCMAKE_BUILD_TYPE=Release)
if(toolchain)
    list(APPEND options "-DCMAKE_TOOLCHAIN_FILE=${toolchain}")
else()
    list(APPEND options "-DCMAKE_CXX_COMPILER=${compiler}")
endif()
run(${CMAKE_COMMAND} -G Ninja -S "${CMAKE_CURRENT_LIST_DIR}" -B "${work}/cmake" ${options})
run(${CMAKE_COMMAND} --build "${work}/cmake")
run(${CMAKE_CTEST_COMMAND} --test-dir "${work}/cmake" --output-on-failure)

# Who links the archive and uses one model carries no other.
find_program(nm nm)
if(nm AND NOT toolchain)
    execute_process(COMMAND ${nm} --demangle "${work}/cmake/consumer_static" OUTPUT_VARIABLE symbols
                    COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "CSp[A-Z][A-Za-z0-9]*RegInfo" models "${symbols}")
    list(REMOVE_DUPLICATES models)
    if(NOT models STREQUAL "CSpCRDWQTYM1200RegInfo")
        message(FATAL_ERROR "the static consumer carries the models ${models}")
    endif()
endif()

find_program(pkg_config pkg-config)
if(pkg_config AND NOT toolchain)
    file(GLOB_RECURSE pc_file "${prefix}/*/wqspcfg.pc")
    cmake_path(GET pc_file PARENT_PATH pc_dir)
    set(ENV{PKG_CONFIG_PATH} "${pc_dir}")
    execute_process(COMMAND ${pkg_config} --cflags --libs wqspcfg OUTPUT_VARIABLE flags COMMAND_ERROR_IS_FATAL ANY)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    execute_process(COMMAND ${pkg_config} --variable=libdir wqspcfg OUTPUT_VARIABLE libdir
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    run(${compiler} -std=c++20 "${CMAKE_CURRENT_LIST_DIR}/Consumer.cpp" -o "${work}/consumer" ${flags}
        "-Wl,-rpath,${libdir}")
    run("${work}/consumer")
endif()
