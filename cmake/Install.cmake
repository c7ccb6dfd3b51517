# The installed package: headers below include/wqspcfg, both forms of the library, the program, and the files that let
# CMake (find_package(WQSpCfg), targets WQSpCfg::static and WQSpCfg::shared) and pkg-config find them.
include(CMakePackageConfigHelpers)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/WQSpCfg)

# What a service provider or a tool writer includes. The package test compiles each of these by itself.
install(
    DIRECTORY src/wqspcfg
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
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
    PATTERN "PosixFile.h" EXCLUDE
    PATTERN "AtomicFile.h" EXCLUDE
    PATTERN "FlatKey.h" EXCLUDE
    PATTERN "FlatTransaction.h" EXCLUDE
    PATTERN "Record.h" EXCLUDE)

install(
    TARGETS wqspcfg_static wqspcfg_shared
    EXPORT WQSpCfgTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(TARGET wqspcfg)
    install(TARGETS wqspcfg RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    if(NOT WIN32 AND NOT CMAKE_CROSSCOMPILING)
        install(FILES "${PROJECT_BINARY_DIR}/wqspcfg.1" DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
        install(FILES "${PROJECT_BINARY_DIR}/wqspcfg.bash"
                DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
                RENAME wqspcfg)
    endif()
endif()

install(EXPORT WQSpCfgTargets NAMESPACE WQSpCfg:: DESTINATION ${package_dir})
configure_package_config_file(cmake/WQSpCfgConfig.cmake.in "${PROJECT_BINARY_DIR}/WQSpCfgConfig.cmake"
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file("${PROJECT_BINARY_DIR}/WQSpCfgConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/WQSpCfgConfig.cmake" "${PROJECT_BINARY_DIR}/WQSpCfgConfigVersion.cmake"
              cmake/FindLMDB.cmake DESTINATION ${package_dir})

if(WIN32)
    set(private_libraries "-ladvapi32")
else()
    set(private_libraries "-llmdb -pthread")
endif()
configure_file(cmake/wqspcfg.pc.in "${PROJECT_BINARY_DIR}/wqspcfg.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/wqspcfg.pc" DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
