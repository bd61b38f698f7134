# Debian packages, by `cpack` in the build folder: the libraries, what programs are built with, and the documentation.
#
# The libraries of both word sizes may be installed side by side.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "The tavSP developers <tavsp@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development documentation)
set(CPACK_COMPONENTS_GROUPING IGNORE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE i386)
else()
  set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE amd64)
endif()

set(tavs_package libtavs${PROJECT_VERSION_MAJOR})
# tav_package(COMPONENT NAME SECTION DEPENDS SUMMARY). CPack has no variable for Multi-Arch, so it follows the section.
macro(tav_package component name section depends summary)
  string(TOUPPER ${component} tavs_component)
  set(CPACK_DEBIAN_${tavs_component}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${tavs_component}_PACKAGE_SECTION "${section}")
  set(CPACK_DEBIAN_${tavs_component}_PACKAGE_DEPENDS "${depends}")
  set(CPACK_COMPONENT_${tavs_component}_DESCRIPTION "${summary}")
endmacro()
tav_package(runtime ${tavs_package} "libs\nMulti-Arch: same" "libc6 (>= 2.16)" "the shared libraries")
tav_package(development libtavs-dev "libdevel\nMulti-Arch: same" "${tavs_package} (= ${PROJECT_VERSION})"
  "headers, and what CMake and pkg-config need")
tav_package(documentation libtavs-doc "doc\nMulti-Arch: foreign" "" "guide, reference and performance report")
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)

include(CPack)
