# What `cmake --install` lays down: both libraries, the headers, and what CMake and pkg-config need to find them.
#
# A 32-bit and a 64-bit build may share one prefix. Their libraries and .pc files lie apart in CMAKE_INSTALL_LIBDIR.
# Their CMake packages lie side by side in lib/cmake, where find_package looks for either word size (with -m32 it does
# not look in lib/i386-linux-gnu); the version file of each turns the other size away. Nothing installed holds an
# absolute path, so a prefix may be moved.
include(CMakePackageConfigHelpers)

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(tavs_package_dir lib/cmake/tavs-i686)
else()
  set(tavs_package_dir lib/cmake/tavs-x86_64)
endif()

# libtavs finds the libtavcore beside it; one in LD_LIBRARY_PATH still comes first.
set_target_properties(tavs PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS tavs tavcore EXPORT tavsTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES include/tavs.h include/tavcore.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(DIRECTORY include/tavs DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development FILES_MATCHING PATTERN "*.h")

install(EXPORT tavsTargets NAMESPACE tavs:: DESTINATION ${tavs_package_dir} COMPONENT development)
configure_package_config_file(cmake/tavsConfig.cmake.in ${CMAKE_BINARY_DIR}/cmake/tavsConfig.cmake
  INSTALL_DESTINATION ${tavs_package_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/cmake/tavsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/cmake/tavsConfig.cmake ${CMAKE_BINARY_DIR}/cmake/tavsConfigVersion.cmake
  DESTINATION ${tavs_package_dir} COMPONENT development)

# The .pc files name their directories from their own place, ${pcfiledir}.
file(RELATIVE_PATH tavs_pc_to_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" tavs_pc_to_prefix ${tavs_pc_to_prefix})
file(RELATIVE_PATH tavs_pc_libdir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH tavs_pc_includedir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
foreach(name tavs tavcore)
  configure_file(cmake/${name}.pc.in ${CMAKE_BINARY_DIR}/cmake/${name}.pc @ONLY)
  install(FILES ${CMAKE_BINARY_DIR}/cmake/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)
endforeach()

install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
# The reference is there if it was built: cmake --build ... --target reference.
install(FILES README.md CHANGELOG.md docs/guide.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation)
install(DIRECTORY docs/performance ${CMAKE_BINARY_DIR}/doc/html DESTINATION ${CMAKE_INSTALL_DOCDIR}
  COMPONENT documentation OPTIONAL)
