// Tests that take long skip themselves unless the environment has TAVS_LONG=1.
#pragma once
#include <gtest/gtest.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>

namespace test {

inline bool long_run() {
  const char* const value = getenv("TAVS_LONG");
  return value && *value == '1';
}

// What the machine can still give without touching its swap space; all there is, if it does not say.
inline uint64_t available_memory() {
  FILE* const file = fopen("/proc/meminfo", "r");
  if (!file) return UINT64_MAX;
  char               line[256];
  unsigned long long kib;
  uint64_t           bytes = UINT64_MAX;
  while (fgets(line, sizeof line, file))
    if (sscanf(line, "MemAvailable: %llu kB", &kib) == 1) bytes = kib * 1024;
  fclose(file);
  return bytes;
}

}  // namespace test

#define TAV_LONG_TEST() \
  if (!test::long_run()) GTEST_SKIP() << "takes long: TAVS_LONG is not 1"
