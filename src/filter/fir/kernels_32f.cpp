// The kernels of real singles. Their results depend on the order of the sums, which is:
//
//   up to 31 taps    from the newest sample on, four products at a time: ((p0 + p1) + p2) + p3, added to what is there
//   more             on the way to a 16-byte boundary of x, and for the last outputs: one by one, the oldest first
//                    between: the products of every fourth sample by themselves, as lanes of a register, over a panel
//                    of 68 places; the lanes in pairs, (l0 + l1) + (l2 + l3), panel after panel
#include "filter/fir/kernels.h"
#include "filter/fir/taps.h"
#include "frame/rounding.h"

namespace tav::TAV_VARIANT::fir {
namespace {

using record                  = float_record<Tav32f>;
constexpr int few_taps        = 31;
constexpr int taps_in_sum     = 4;
constexpr int taps_in_pass    = 2 * taps_in_sum;
constexpr int panel_registers = 17;
constexpr int lanes_one_from  = 12;  // taps from which one-sample calls sum in lanes

TAV_INLINE __m128 read(const Tav32f* p) { return load<access::unaligned, 4>(p); }
TAV_INLINE __m128 tap(const Tav32f* p) { return load<access::aligned, 4>(p); }

// The sum with one more product, which may be its first. Where registers are few it is held, so that each step is done
// with its own before the next one takes them.
TAV_INLINE __m128 plus_product(bool first, __m128 sum, __m128 x, __m128 h) {
  sum = first ? x * h : sum + x * h;
  return few_registers ? held(sum) : sum;
}

// Up to eight taps over n outputs, a multiple of four. The first pass begins the outputs, later ones add to them.
//
// What the fifth to the eighth tap make of a register of samples belongs to the outputs four later, and is carried over
// to them: so samples are read once for two products. Taps stay in registers as far as there are some.
template <int Count, bool First> void pass(const Tav32f* newest, const Tav32f* taps, Tav32f* y, size_t n) {
  constexpr int low = Count < taps_in_sum ? Count : taps_in_sum, high = Count - low;
  constexpr int kept = high != 0 && few_registers ? low - 1 : low, kept_later = few_registers ? 0 : high;
  const auto    low_tap  = [&](int j) { return tap(taps + 4 * j); };
  const auto    high_tap = [&](int j) { return tap(taps + 4 * (taps_in_sum + j)); };
  __m128        h[taps_in_sum], g[taps_in_sum], carried{};
#pragma GCC unroll 4
  for (int j = 0; j < kept; ++j) h[j] = low_tap(j);
#pragma GCC unroll 4
  for (int j = 0; j < kept_later; ++j) g[j] = high_tap(j);
#pragma GCC unroll 4
  for (int j = 0; j < high; ++j) carried = plus_product(j == 0, carried, read(newest - taps_in_sum - j), high_tap(j));
#pragma GCC unroll 2
  for (size_t i = 0; i < n; i += 4) {
    __m128 sums{}, later{};
#pragma GCC unroll 4
    for (int j = 0; j < low; ++j) {
      const __m128 x = loaded_once(read(newest + i - j));
      sums           = plus_product(j == 0, sums, x, j < kept ? h[j] : low_tap(j));
      if (j < high) later = plus_product(j == 0, later, x, j < kept_later ? g[j] : high_tap(j));
    }
    if constexpr (!First) sums = read(y + i) + sums;
    if constexpr (high != 0) sums += carried, carried = later;
    store<access::unaligned>(y + i, sums);
  }
}

template <bool First> void pass_of(int count, const Tav32f* newest, const Tav32f* taps, Tav32f* y, size_t n) {
  constexpr decltype(&pass<1, First>) by_count[taps_in_pass] = {pass<1, First>, pass<2, First>, pass<3, First>,
                                                                pass<4, First>, pass<5, First>, pass<6, First>,
                                                                pass<7, First>, pass<8, First>};
  by_count[(count < taps_in_pass ? count : taps_in_pass) - 1](newest, taps, y, n);
}

void all_passes(const record& r, const Tav32f* x, Tav32f* y, size_t n) {
  const Tav32f* newest = x + r.taps_len - 1;
  pass_of<true>(r.taps_len, newest, r.repeated, y, n);
  for (int k = taps_in_pass; k < r.taps_len; k += taps_in_pass)
    pass_of<false>(r.taps_len - k, newest - k, r.repeated + 4 * k, y, n);
}

// One output in the same order.
Tav32f passes_at(const record& r, const Tav32f* x) {
  const Tav32f* newest = x + r.taps_len - 1;
  Tav32f        sum    = 0;
  for (int k = 0; k < r.taps_len;) {
    const int count  = r.taps_len - k < taps_in_sum ? r.taps_len - k : taps_in_sum;
    Tav32f    passed = peek(newest - k) * r.repeated[4 * k];
    for (int j = 1; j < count; ++j) passed += peek(newest - k - j) * r.repeated[4 * (k + j)];
    sum = k == 0 ? passed : sum + passed;
    k += count;
  }
  return sum;
}

// In pieces that stay in the first-level cache from pass to pass. The last register may begin with outputs that are
// there already, and become the same again.
void run_few(const record& r, const Tav32f* x, Tav32f* y, size_t n) {
  constexpr size_t piece = 1024;
  const size_t     whole = n & ~size_t(3);
  for (size_t i = 0; i < whole; i += piece) all_passes(r, x + i, y + i, whole - i < piece ? whole - i : piece);
  if (whole == 0) {
    for (size_t i = 0; i < n; ++i) poke(y + i, passes_at(r, x + i));
  } else if (whole < n) {
    Tav32f last[4];
    all_passes(r, x + n - 4, last, 4);
    store<access::unaligned>(y + n - 4, read(last));
  }
}

// One by one, the oldest first: at one output or at four.
Tav32f sum_in_order(const record& r, const Tav32f* x) {
  Tav32f sum = peek(x) * r.reversed[0];
  for (int i = 1; i < r.taps_len; ++i) sum += peek(x + i) * r.reversed[i];
  return sum;
}
void sums_in_order(const record& r, const Tav32f* x, Tav32f* y) {
  const Tav32f* taps = r.repeated + 4 * (r.taps_len - 1);
  __m128        sums = read(x) * tap(taps);
  for (int i = 1; i < r.taps_len; ++i) sums += read(x + i) * tap(taps -= 4);
  store<access::unaligned>(y, sums);
}
void all_in_order(const record& r, const Tav32f* x, Tav32f* y, size_t n) {
  size_t i = 0;
  for (; n - i >= 4; i += 4) sums_in_order(r, x + i, y + i);
  if (i == n) return;
  if (n >= 4)
    sums_in_order(r, x + n - 4, y + n - 4);
  else
    for (; i < n; ++i) poke(y + i, sum_in_order(r, x + i));
}

// (l0 + l1) and (l2 + l3) of two registers.
TAV_INLINE __m128 sums_of_pairs(__m128 a, __m128 b) {
  return _mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)) + _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1));
}

// 4 K outputs, each as four lanes.
template <int K> TAV_INLINE void sums_in_lanes(const record& r, const Tav32f* x, Tav32f* y) {
  const Tav32f* taps = r.staggered;
  __m128        total[K]{};
  for (int left = registers_in_copy(r.taps_len); left > 0;) {
    const int panel = left < panel_registers ? left : panel_registers;
    __m128    s[K][copies]{};
#pragma GCC unroll 2
    for (const Tav32f* const end = taps + 4 * copies * panel; taps != end; taps += 4 * copies, x += 4)
#pragma GCC unroll 4
      for (int c = 0; c < copies; ++c)
#pragma GCC unroll 2
        for (int q = 0; q < K; ++q) s[q][c] += read(x + 4 * q) * tap(taps + 4 * c);
#pragma GCC unroll 2
    for (int q = 0; q < K; ++q) {
      const __m128 sums = sums_of_pairs(sums_of_pairs(s[q][0], s[q][1]), sums_of_pairs(s[q][2], s[q][3]));
      total[q]          = left == registers_in_copy(r.taps_len) ? sums : total[q] + sums;
    }
    left -= panel;
  }
#pragma GCC unroll 2
  for (int q = 0; q < K; ++q) store<access::unaligned>(y + 4 * q, total[q]);
}

// The last four to seven outputs are not made in lanes: those read up to three samples more than there are.
void run_many(const record& r, const Tav32f* x, Tav32f* y, size_t n) {
  const size_t to_boundary = -(reinterpret_cast<uintptr_t>(x) / sizeof(Tav32f)) % 4;
  if (n < to_boundary + 8) return all_in_order(r, x, y, n);
  if (to_boundary != 0) sums_in_order(r, x, y);
  const size_t tail = (n - to_boundary) % 4 + 4;
  size_t       i    = to_boundary;
  if constexpr (!few_registers)
    for (; i + 8 <= n - tail; i += 8) sums_in_lanes<2>(r, x + i, y + i);
  for (; i < n - tail; i += 4) sums_in_lanes<1>(r, x + i, y + i);
  all_in_order(r, x + n - tail, y + n - tail, tail);
}

// One output in lanes.
Tav32f sum_of_lanes(const record& r, const Tav32f* x) {
  const int n    = r.taps_len;
  int       i    = 0;
  __m128    sums = _mm_setzero_ps();
  for (; n - i >= 4; i += 4) sums += read(x + i) * tap(r.reversed + i);
  if (n - i >= 2) {
    sums += load<access::unaligned, 2>(x + i) * load<access::unaligned, 2>(r.reversed + i);
    i += 2;
  }
  if (n - i == 1) sums = _mm_add_ss(sums, _mm_set_ss(x[i] * r.reversed[i]));
  const __m128 halves = sums + _mm_movehl_ps(sums, sums);
  return _mm_cvtss_f32(_mm_add_ss(halves, _mm_shuffle_ps(halves, halves, 1)));
}

}  // namespace

void run_taps(const record& r, const Tav32f* x, Tav32f* y, size_t n) {
  if (r.taps_len <= few_taps)
    run_few(r, x, y, n);
  else
    run_many(r, x, y, n);
}

Tav32f newest_output(const record& r) {
  return r.taps_len < lanes_one_from ? sum_in_order(r, r.delay.window()) : sum_of_lanes(r, r.delay.window());
}

}  // namespace tav::TAV_VARIANT::fir
