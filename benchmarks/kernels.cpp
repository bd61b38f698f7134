// Other kernels for the same work, in turns with the library's: what is left to gain. docs/performance/limits.md reads
// the outcome.
#include <pmmintrin.h>

#include "harness.h"

namespace bench {
namespace {

enum class store { cached, streamed };

// A round of Vectors registers. First: all loads of a round stand before its stores. Ahead: bytes by which the sources
// are asked for in advance, 0 for not at all.
template <int Vectors, store Store, bool First, int Ahead> void add_kernel(const arrays<Tav32f>& x, int n) {
  const float *const a = x.a, *const b = x.b;  // in registers: a store of a vector might change x itself
  float* const out = x.out;
  for (int i = 0; i < n; i += 4 * Vectors) {
    if constexpr (Ahead != 0)
      for (const float* source : {a, b}) _mm_prefetch(reinterpret_cast<const char*>(source + i) + Ahead, _MM_HINT_T0);
    __m128     sums[Vectors];
    const auto sum = [&](int k) { return _mm_add_ps(_mm_load_ps(a + i + 4 * k), _mm_load_ps(b + i + 4 * k)); };
    const auto put = [&](int k, __m128 v) {
      Store == store::streamed ? _mm_stream_ps(out + i + 4 * k, v) : _mm_store_ps(out + i + 4 * k, v);
    };
#pragma GCC unroll 8
    for (int k = 0; k < Vectors; ++k)
      if constexpr (First)
        sums[k] = sum(k);
      else
        put(k, sum(k));
#pragma GCC unroll 8
    for (int k = 0; k < Vectors; ++k)
      if constexpr (First) put(k, sums[k]);
  }
  if (Store == store::streamed) _mm_sfence();
}

// Complex products, by rounds of Vectors registers.
template <int Vectors> void complex_kernel(const arrays<Tav32fc>& x, int n) {
  const auto   a = reinterpret_cast<const float*>(x.a), b = reinterpret_cast<const float*>(x.b);
  float* const out = reinterpret_cast<float*>(x.out);
  for (int i = 0; i < 2 * n; i += 4 * Vectors)
#pragma GCC unroll 8
    for (int k = 0; k < Vectors; ++k) {
      const __m128 p = _mm_load_ps(a + i + 4 * k), q = _mm_load_ps(b + i + 4 * k);
      _mm_store_ps(out + i + 4 * k, _mm_addsub_ps(_mm_mul_ps(p, _mm_moveldup_ps(q)),
                                                  _mm_mul_ps(_mm_shuffle_ps(p, p, 0xB1), _mm_movehdup_ps(q))));
    }
}

// The same with one factor's pairs turned round by an integer shuffle, which needs no copy of its source.
void complex_integer_shuffle(const arrays<Tav32fc>& x, int n) {
  const auto   a = reinterpret_cast<const float*>(x.a), b = reinterpret_cast<const float*>(x.b);
  float* const out = reinterpret_cast<float*>(x.out);
  for (int i = 0; i < 2 * n; i += 8)
#pragma GCC unroll 2
    for (int k = 0; k < 2; ++k) {
      const __m128 p = _mm_load_ps(a + i + 4 * k), q = _mm_load_ps(b + i + 4 * k);
      const __m128 turned = _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(p), 0xB1));
      _mm_store_ps(out + i + 4 * k,
                   _mm_addsub_ps(_mm_mul_ps(p, _mm_moveldup_ps(q)), _mm_mul_ps(turned, _mm_movehdup_ps(q))));
    }
}

// Real and imaginary parts in registers of their own.
void complex_by_parts(const arrays<Tav32fc>& x, int n) {
  const auto   a = reinterpret_cast<const float*>(x.a), b = reinterpret_cast<const float*>(x.b);
  float* const out = reinterpret_cast<float*>(x.out);
  for (int i = 0; i < 2 * n; i += 8) {
    const __m128 a0 = _mm_load_ps(a + i), a1 = _mm_load_ps(a + i + 4);
    const __m128 b0 = _mm_load_ps(b + i), b1 = _mm_load_ps(b + i + 4);
    const __m128 are = _mm_shuffle_ps(a0, a1, 0x88), aim = _mm_shuffle_ps(a0, a1, 0xDD);
    const __m128 bre = _mm_shuffle_ps(b0, b1, 0x88), bim = _mm_shuffle_ps(b0, b1, 0xDD);
    const __m128 re = _mm_sub_ps(_mm_mul_ps(are, bre), _mm_mul_ps(aim, bim));
    const __m128 im = _mm_add_ps(_mm_mul_ps(are, bim), _mm_mul_ps(aim, bre));
    _mm_store_ps(out + i, _mm_unpacklo_ps(re, im));
    _mm_store_ps(out + i + 4, _mm_unpackhi_ps(re, im));
  }
}

// An array times a constant, by rounds of Vectors registers.
template <int Vectors> void constant_kernel(const arrays<Tav32f>& x, int n) {
  const float* const a   = x.a;
  float* const       out = x.out;
  const __m128       val = _mm_set1_ps(3);
  for (int i = 0; i < n; i += 4 * Vectors)
#pragma GCC unroll 8
    for (int k = 0; k < Vectors; ++k) _mm_store_ps(out + i + 4 * k, _mm_mul_ps(_mm_load_ps(a + i + 4 * k), val));
}

// As many streams of the destination at once.
template <int Streams, store Store> void fill_kernel(const arrays<Tav8u>& x, int n) {
  const __m128i pattern = _mm_set1_epi8(7);
  Tav8u* const  out     = x.out;
  const int     part    = n / Streams / 64 * 64;
  for (int i = 0; i < part; i += 64)
    for (int s = 0; s < Streams; ++s)
#pragma GCC unroll 4
      for (int k = 0; k < 64; k += 16) {
        const auto p = reinterpret_cast<__m128i*>(out + s * part + i + k);
        Store == store::streamed ? _mm_stream_si128(p, pattern) : _mm_store_si128(p, pattern);
      }
  for (int i = part * Streams; i < n; ++i) out[i] = 7;
  if (Store == store::streamed) _mm_sfence();
}

void add_32f(const arrays<Tav32f>& x, int n) { tavsAdd_32f(x.a, x.b, x.out, n); }
void times_3(const arrays<Tav32f>& x, int n) { tavsMulC_32f(x.a, 3, x.out, n); }
void mul_32fc(const arrays<Tav32fc>& x, int n) { tavsMul_32fc(x.a, x.b, x.out, n); }

// The other kernels have no heads and tails: what is left of a round is the library's.
template <auto Library, auto Kernel>
constexpr auto whole_rounds = [](auto& x, int n) {
  const int whole = n / 32 * 32, rest = n - whole;
  Kernel(x, whole);
  if (rest != 0) Library({x.a + whole, x.b + whole, x.out + whole}, rest);
};

}  // namespace

BENCH_FAMILY(kernels) {
  constexpr auto cached = store::cached, streamed = store::streamed;
  contest<Tav32f>({.name = "Add_32f, other kernels", .bytes = 12},
                  {{ours, add_32f},
                   {"1 vector", whole_rounds<add_32f, add_kernel<1, cached, false, 0>>},
                   {"2 vectors", whole_rounds<add_32f, add_kernel<2, cached, false, 0>>},
                   {"4 vectors", whole_rounds<add_32f, add_kernel<4, cached, false, 0>>},
                   {"4, loads first", whole_rounds<add_32f, add_kernel<4, cached, true, 0>>},
                   {"8, loads first", whole_rounds<add_32f, add_kernel<8, cached, true, 0>>},
                   {"streamed", whole_rounds<add_32f, add_kernel<4, streamed, true, 0>>},
                   {"streamed, asked 256 ahead", whole_rounds<add_32f, add_kernel<4, streamed, true, 256>>},
                   {"streamed, asked 2048 ahead", whole_rounds<add_32f, add_kernel<4, streamed, true, 2048>>}});
  contest<Tav32fc>({.name = "Mul_32fc, other kernels", .bytes = 24},
                   {{ours, mul_32fc},
                    {"1 vector", whole_rounds<mul_32fc, complex_kernel<1>>},
                    {"2 vectors", whole_rounds<mul_32fc, complex_kernel<2>>},
                    {"4 vectors", whole_rounds<mul_32fc, complex_kernel<4>>},
                    {"integer shuffle", whole_rounds<mul_32fc, complex_integer_shuffle>},
                    {"parts apart", whole_rounds<mul_32fc, complex_by_parts>}});
  contest<Tav32f>({.name = "MulC_32f, other kernels", .bytes = 8},
                  {{ours, times_3},
                   {"1 vector", whole_rounds<times_3, constant_kernel<1>>},
                   {"2 vectors", whole_rounds<times_3, constant_kernel<2>>},
                   {"4 vectors", whole_rounds<times_3, constant_kernel<4>>}});
  contest<Tav8u>({.name = "Set_8u, other kernels", .bytes = 1},
                 {{ours, [](auto& x, int n) { tavsSet_8u(7, x.out, n); }},
                  {"cached", fill_kernel<1, cached>},
                  {"cached, 4 streams", fill_kernel<4, cached>},
                  {"streamed", fill_kernel<1, streamed>},
                  {"streamed, 4 streams", fill_kernel<4, streamed>}});
}

}  // namespace bench
