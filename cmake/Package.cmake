# The packages that cpack makes of a build tree: Debian's libwqspcfg1, libwqspcfg-dev and wqspcfg, or a zip for Windows.
# scripts/package calls it for all of them.
set(CPACK_PACKAGE_NAME wqspcfg)
set(CPACK_PACKAGE_VENDOR "the owners of WQSpCfg")
set(CPACK_PACKAGE_CONTACT "${WQSPCFG_MAINTAINER}")
set(CPACK_STRIP_FILES TRUE)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/FinishPackage.cmake")
set(CPACK_WQSPCFG_SOURCE_DIR "${PROJECT_SOURCE_DIR}")

if(WIN32)
    set(CPACK_GENERATOR External)
    set(CPACK_EXTERNAL_ENABLE_STAGING ON)
    set(CPACK_MONOLITHIC_INSTALL ON)
    set(CPACK_EXTERNAL_PACKAGE_SCRIPT "${PROJECT_SOURCE_DIR}/cmake/PackZip.cmake")
    set(CPACK_INSTALL_CMAKE_PROJECTS "${PROJECT_BINARY_DIR};${PROJECT_NAME};ALL;/")
    list(APPEND CPACK_INSTALL_CMAKE_PROJECTS "${PROJECT_BINARY_DIR};${PROJECT_NAME};reference;/")
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
        set(CPACK_SYSTEM_NAME windows-x86_64)
    else()
        set(CPACK_SYSTEM_NAME windows-i686)
    endif()
else()
    set(CPACK_GENERATOR DEB)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(CPACK_COMPONENTS_ALL runtime development program)
    set(CPACK_DEB_COMPONENT_INSTALL ON)
    set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package's description has its own first line
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
    set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
    set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
    set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

    file(WRITE "${PROJECT_BINARY_DIR}/debian/triggers" "activate-noawait ldconfig\n")

    set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libwqspcfg${PROJECT_VERSION_MAJOR})
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_BINARY_DIR}/debian/triggers")
    set(CPACK_DEBIAN_RUNTIME_DESCRIPTION
        "configuration of CEN/XFS service providers (shared library)
A service provider loads the settings of its device model from a registry,
reads them while it runs, and saves what it has changed.
.
This package holds the library that service providers are linked with.")

    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libwqspcfg-dev)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
        "libwqspcfg${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}), liblmdb-dev")
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS wqspcfg)
    set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
        "configuration of CEN/XFS service providers (development files)
A service provider loads the settings of its device model from a registry,
reads them while it runs, and saves what it has changed.
.
This package holds the headers, the static library, and the files for CMake
and pkg-config.")

    set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME wqspcfg)
    set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION admin)
    set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_PROGRAM_DESCRIPTION
        "configuration of CEN/XFS service providers (program)
Shows what the service providers of a self-service banking terminal run with
and why, finds what is wrong, compares terminals, and changes settings; in an
embedded store or a registry export.
.
This package holds the program, its manual page, the reference of all settings,
and the example of a service provider.")
endif()

include(CPack)
