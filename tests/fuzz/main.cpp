// Draws an export and the arguments of a call, and calls it: with libFuzzer, which keeps what leads to new places, or
// without, as `fuzz COUNT [SEED [records]]`, which makes so many calls drawn at random, of all functions or of those
// that work with records and delay lines.
#include <random>
#include <string_view>

#include "fuzz/input.h"

namespace fuzz {
namespace {

bool records_only = false;

const std::vector<row>& rows() {
  static const std::vector<row> all = [] {
    std::vector<row> r;
    if (!records_only) add_array_rows(r);
    add_fft_rows(r);
    add_fir_rows(r);
    add_iir_rows(r);
    return r;
  }();
  return all;
}

void one_call(const uint8_t* bytes, size_t size) {
  input      in(bytes, size);
  const row& r = rows()[size_t(in.below(int(rows().size())))];
  r.call(r.name, r.function, in);
}

}  // namespace
}  // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
  fuzz::one_call(bytes, size);
  return 0;
}

#ifndef TAV_LIBFUZZER
int main(int argc, char** argv) {
  const long   calls = argc > 1 ? atol(argv[1]) : 10000;
  std::mt19937 bits(argc > 2 ? unsigned(atol(argv[2])) : 1);
  fuzz::records_only = argc > 3 && std::string_view(argv[3]) == "records";
  for (long i = 0; i < calls; ++i) {
    const uint32_t seed[2] = {uint32_t(bits()), uint32_t(bits())};
    fuzz::one_call(reinterpret_cast<const uint8_t*>(seed), sizeof seed);
  }
  printf("%ld calls of %zu functions\n", calls, fuzz::rows().size());
  return 0;
}
#endif
