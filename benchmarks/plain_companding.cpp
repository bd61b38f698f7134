#include "plain_companding.h"

#include <math.h>

namespace plain {
namespace {

int bit_length(unsigned v) { return v == 0 ? 0 : 32 - __builtin_clz(v); }

struct mu_law_table {
  Tav16s sample[256];

  mu_law_table() {
    for (int code = 0; code < 256; ++code) {
      const int bits = ~code, size = (((bits & 15) * 8 + 132) << (bits >> 4 & 7)) - 132;
      sample[code] = Tav16s((code & 0x80) != 0 ? size : -size);
    }
  }
};
const mu_law_table table;

}  // namespace

void to_mu_law(const Tav16s* __restrict src, Tav8u* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) {
    const int x = src[i], size = ((x < 0 ? ~x : x) >> 2) + 33, m = size < 8191 ? size : 8191;
    const int segment = 1 + bit_length(unsigned(m) >> 6);
    dst[i]            = Tav8u((15 - (m >> segment & 15) + (8 - segment) * 16) | (x < 0 ? 0 : 0x80));
  }
}

void to_a_law(const Tav16s* __restrict src, Tav8u* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) {
    const int x = src[i], v = (x < 0 ? ~x : x) >> 3, segment = bit_length(unsigned(v) >> 5);
    dst[i] = Tav8u((segment * 16 | (v >> (segment < 2 ? 1 : segment) & 15)) ^ (x < 0 ? 0x55 : 0xD5));
  }
}

void from_mu_law(const Tav8u* __restrict src, Tav16s* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = table.sample[src[i]];
}

void split(const Tav16s* __restrict src, float** lines, int count, int n) {
  for (int c = 0; c < count; ++c) {
    float* __restrict line = lines[c];
    for (int j = 0; j < n; ++j) line[j] = src[j * count + c] * 3.0518044e-5f + 1.5259022e-5f;
  }
}

void join(const float** lines, int count, int n, Tav16s* __restrict dst) {
  for (int c = 0; c < count; ++c) {
    const float* __restrict line = lines[c];
    for (int j = 0; j < n; ++j) {
      const float v      = (line[j] - 1.5259022e-5f) * 32767.5f;
      dst[j * count + c] = Tav16s(lrintf(v > 32767 ? 32767 : v < -32768 ? -32768 : v));
    }
  }
}

}  // namespace plain
