# Defines LMDB::LMDB.
find_path(LMDB_INCLUDE_DIR lmdb.h)
find_library(LMDB_LIBRARY lmdb)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(LMDB REQUIRED_VARS LMDB_LIBRARY LMDB_INCLUDE_DIR)
mark_as_advanced(LMDB_INCLUDE_DIR LMDB_LIBRARY)
if(LMDB_FOUND AND NOT TARGET LMDB::LMDB)
    add_library(LMDB::LMDB UNKNOWN IMPORTED)
    set_target_properties(LMDB::LMDB PROPERTIES IMPORTED_LOCATION "${LMDB_LIBRARY}"
                                                INTERFACE_INCLUDE_DIRECTORIES "${LMDB_INCLUDE_DIR}")
endif()
