#include "confine.h"

#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>
#include <volk/volk_prefs.h>

#include "harness.h"

namespace bench {

// With these taken away glibc 2.36 calls __memcpy_ssse3, __memmove_ssse3 and, for 64 bits, __memset_sse2_unaligned,
// for 32 bits __memset_sse2: the widest register is of 16 bytes, and none leaves the work to `rep movsb`.
static constexpr char taken_away[] =
    "glibc.cpu.hwcaps=-AVX512F,-AVX512VL,-AVX512BW,-AVX2,-AVX,-AVX_Fast_Unaligned_Load,-ERMS,-FSRM";

static constexpr char marker[] = "TAV_BENCH_CONFINED", mask[] = "TAV_BENCH_MASK";

void confine(const std::string& variant, char** argv) {
  if (getenv(marker)) return;
  setenv(marker, "1", 1);
  setenv(mask, variant == "s8" ? "0x30" : "0x10", 1);
  setenv("GLIBC_TUNABLES", taken_away, 1);
  setenv("VOLK_CONFIGPATH", BENCH_DIR, 1);
  execv("/proc/self/exe", argv);
  perror("bench: /proc/self/exe");
  exit(1);
}

void require_confined(const char* kernel) {
  static volk_arch_pref_t* preferences = nullptr;
  static const size_t      count       = volk_load_preferences(&preferences);
  for (size_t i = 0; i < count; ++i)
    if (strcmp(preferences[i].name, kernel) == 0) return;
  fprintf(stderr, "bench: volk/volk_config does not confine %s\n", kernel);
  exit(1);
}

}  // namespace bench

// Stands before libtavcore's: the library asks it which variant to run.
extern "C" __attribute__((visibility("default"))) uint32_t tavGetEnabledCpuFeatures() {
  const char* value = getenv(bench::mask);
  return value ? uint32_t(strtoul(value, nullptr, 0)) : 0x10;
}
