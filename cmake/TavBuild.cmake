# How the library's sources are compiled: one set of flags, and one object library per build of the bodies.
set(CMAKE_C_STANDARD 99)
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()
set(CMAKE_CXX_FLAGS_RELEASE "-O2")
set(CMAKE_C_FLAGS_RELEASE "-O2")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

set(TAVS_SANITIZE "" CACHE STRING "Sanitizers to build everything with, for example address,undefined")
if(TAVS_SANITIZE)
  add_compile_options(-fsanitize=${TAVS_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${TAVS_SANITIZE})
endif()

set(tav_warnings -Wall -Wextra -Wpedantic -Wshadow)
if(TAVS_WERROR)
  list(APPEND tav_warnings -Werror)
endif()

# Scalar floats run on SSE and are never fused, so that they equal the vector lanes bit for bit. The loops are written
# in vectors already: the compiler neither makes more of them nor turns them into calls of memcpy.
set(tav_code_options -mssse3 -mfpmath=sse -ffp-contract=off -fno-exceptions -fno-rtti -fno-threadsafe-statics
  -fno-builtin -fvisibility=hidden -fcf-protection=full -Wno-ignored-attributes)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  list(APPEND tav_code_options -mstackrealign)   # callers may come with a stack aligned to 4 bytes
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  list(APPEND tav_code_options -fno-tree-vectorize -fno-tree-loop-distribute-patterns -falign-loops=64)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    list(APPEND tav_code_options -maccumulate-outgoing-args)   # realigned stacks then cost no second register
  endif()
  set(tav_s8_options -fschedule-insns -fsched-pressure)   # in-order processors want loads well ahead of their use
else()
  list(APPEND tav_code_options -fno-vectorize -fno-slp-vectorize)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    list(APPEND tav_code_options -mstack-alignment=4)   # or clang reads the arguments as if they were aligned
  endif()
  set(tav_s8_options)
endif()

# tav_build(NAME SOURCES...): the bodies in `sources` as the build NAME; NAME is also the namespace they live in.
function(tav_build name)
  add_library(tav_${name} OBJECT ${ARGN})
  target_include_directories(tav_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include)
  target_compile_definitions(tav_${name} PRIVATE TAV_VARIANT=${name})
  target_compile_options(tav_${name} PRIVATE ${tav_code_options} ${tav_${name}_options} ${tav_warnings})
endfunction()

# tav_shared_library(NAME): what both libraries have in common: version, link options, and a link by the C driver,
# which keeps the C++ runtime out.
function(tav_shared_library name)
  set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
    LINKER_LANGUAGE C C_VISIBILITY_PRESET hidden)
  target_link_options(${name} PRIVATE LINKER:-z,relro,-z,now,-z,noexecstack,-z,text LINKER:--as-needed)
  if(NOT TAVS_SANITIZE)
    target_link_options(${name} PRIVATE LINKER:--no-undefined)
  endif()
endfunction()
