# What tests, benchmarks and examples link besides our own libraries: GoogleTest, built here from Debian's sources for
# the target at hand, and the libraries that tools/deps unpacked for its word size.

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(tav_sysroot ${TAVS_DEPS}/i386)
  set(tav_triplet i386-linux-gnu)
else()
  set(tav_sysroot ${TAVS_DEPS}/amd64)
  set(tav_triplet x86_64-linux-gnu)
endif()

# tav_gtest: GoogleTest with its main program
function(tav_deps_googletest)
  set(source /usr/src/googletest)
  if(NOT EXISTS ${source}/googletest/src/gtest-all.cc)
    message(FATAL_ERROR "GoogleTest's sources in ${source} are missing: run tools/deps tests")
  endif()
  set(THREADS_PREFER_PTHREAD_FLAG ON)
  find_package(Threads REQUIRED)
  add_library(tav_gtest STATIC ${source}/googletest/src/gtest-all.cc ${source}/googletest/src/gtest_main.cc)
  target_include_directories(tav_gtest SYSTEM PUBLIC ${source}/googletest/include PRIVATE ${source}/googletest)
  target_compile_options(tav_gtest PRIVATE -w)
  target_link_libraries(tav_gtest PUBLIC Threads::Threads)
endfunction()

# tav_deps_library(NAME LIBRARY HEADER PART): the target tav_NAME for an unpacked shared library and its header, which
# `tools/deps PART` brings. The libraries that it needs in turn are found next to it: at run time through DT_RPATH,
# because DT_RUNPATH, the default, would not reach them.
function(tav_deps_library name library header part)
  set(folder ${tav_sysroot}/usr/lib/${tav_triplet})
  set(base_folder ${tav_sysroot}/lib/${tav_triplet})
  set(include ${tav_sysroot}/usr/include)
  if(NOT EXISTS ${folder}/lib${library}.so OR NOT EXISTS ${include}/${header})
    message(FATAL_ERROR "lib${library} for ${tav_triplet} is missing: run tools/deps ${part}")
  endif()
  add_library(tav_${name} INTERFACE)
  target_include_directories(tav_${name} SYSTEM INTERFACE ${include} ${include}/${tav_triplet})
  target_link_libraries(tav_${name} INTERFACE ${folder}/lib${library}.so)
  target_link_options(tav_${name} INTERFACE LINKER:--disable-new-dtags,-rpath,${folder}:${base_folder})
endfunction()

if(TAVS_TESTS)
  tav_deps_googletest()
endif()
if(TAVS_EXAMPLES)
  tav_deps_library(sndfile sndfile sndfile.h examples)
  tav_deps_library(png png16 png.h examples)
endif()
if(TAVS_BENCH)
  tav_deps_library(benchmark benchmark benchmark/benchmark.h bench)
  tav_deps_library(volk volk volk/volk.h bench)
  tav_deps_library(sleef sleef ${tav_triplet}/sleef.h bench)
endif()
