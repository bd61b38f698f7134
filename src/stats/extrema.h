// The largest and the smallest element of an array, and where they first occur.
//
// An array is read once, in blocks: the best key so far remembers the block that brought it, and only that block is
// searched for the element itself. An element is always read from its place, so that what is reported is the first of
// its equals, bit for bit: of zeros one of either sign. NaNs take no part; where there is nothing else, the first one
// is reported.
#pragma once
#include "stats/extrema_lanes.h"
#include "stats/forms.h"

namespace tav::TAV_VARIANT::extrema {

template <class K> TAV_INLINE K lowest_lane(reg<K> v) {
  if constexpr (std::is_same_v<K, float>)
    return _mm_cvtss_f32(v);
  else if constexpr (std::is_same_v<K, double>)
    return _mm_cvtsd_f64(v);
  else
    return K(_mm_cvtsi128_si32(v));
}

// One extreme of an array, as a key.
template <class Order, side Side> struct extreme {
  using order   = Order;
  using element = typename Order::element;
  using key     = typename Order::key;
  using partial = reg<element>;

  static constexpr reduce_shape shape{.step = lanes<element>, .tail_again = true};
  static constexpr key          start_key = Side == side::largest ? Order::first : Order::last;

  static bool    is_beyond(key a, key b) { return Side == side::largest ? a > b : a < b; }
  static partial better(partial best, partial x) {
    return Side == side::largest ? Order::larger(best, x) : Order::smaller(best, x);
  }

  static partial start() { return from_bits<element>(start_lanes(start_key)); }
  static void    many(partial& p, reg<element> x) { p = in_register(better(p, in_register(Order::keys_of(x)))); }
  static void    join(partial& p, partial q) { p = better(p, q); }
  static key     total(partial p) { return lowest_lane<key>(across<8>(p)); }
  static void    one(key& k, element x) { k = is_beyond(Order::key_of(x), k) ? Order::key_of(x) : k; }

 private:
  template <int Apart> static TAV_INLINE partial across(partial p) {
    p = better(p, from_bits<element>(_mm_srli_si128(as_bits(p), Apart)));
    if constexpr (Apart == sizeof(element))
      return p;
    else
      return across<Apart / 2>(p);
  }
};

// Both, in one pass.
template <class Order> struct both_extremes {
  using low     = extreme<Order, side::smallest>;
  using high    = extreme<Order, side::largest>;
  using element = typename Order::element;

  struct partial {
    reg<element> low, high;
  };
  struct keys {
    typename Order::key low, high;
  };

  // Eight registers hold two of them and what the next vectors need.
  static constexpr reduce_shape shape{
      .step = lanes<element>, .partials = sizeof(void*) == 4 ? 2 : 4, .tail_again = true};

  static partial start() { return {low::start(), high::start()}; }
  static void    many(partial& p, reg<element> x) { low::many(p.low, x), high::many(p.high, x); }
  static void    join(partial& p, const partial& q) { low::join(p.low, q.low), high::join(p.high, q.high); }
  static keys    total(const partial& p) { return {low::total(p.low), high::total(p.high)}; }
  static void    one(keys& k, element x) { low::one(k.low, x), high::one(k.high, x); }
};

// The first element from `from` on with the key k; `to` if there is none before that.
template <class Order>
size_t first_with(typename Order::key k, size_t from, size_t to, const typename Order::element* src) {
  using element        = typename Order::element;
  constexpr size_t n   = lanes<element>;
  const auto       all = from_bits<element>(repeated(k));
  const auto       at  = [&](size_t i) {
    return as_bits(Order::equal(Order::keys_of(load<access::unaligned, int(n)>(src + i)), all));
  };
  const auto vector = [&](size_t i) {  // n if not there
    const int bytes = _mm_movemask_epi8(at(i));
    return bytes == 0 ? n : size_t(__builtin_ctz(unsigned(bytes))) / sizeof(element);
  };

  size_t i = from;
  for (; to - i >= 4 * n; i += 4 * n) {
    const __m128i any = _mm_or_si128(_mm_or_si128(at(i), at(i + n)), _mm_or_si128(at(i + 2 * n), at(i + 3 * n)));
    if (_mm_movemask_epi8(any) != 0) break;
  }
  for (; to - i >= n; i += n)
    if (const size_t lane = vector(i); lane != n) return i + lane;
  if (to - from >= n) {  // the last vector again: what it has before i is known to differ
    const size_t lane = vector(to - n);
    return to - n + lane;
  }
  for (; i < to; ++i)
    if (Order::key_of(peek(src + i)) == k) return i;
  return to;
}

inline constexpr size_t block_bytes = 4096;

// The end of the block that begins at `from`.
template <class T> TAV_INLINE size_t end_of_block(size_t from, size_t len) {
  constexpr size_t elements = block_bytes / sizeof(T);
  return len - from > elements ? from + elements : len;
}

// The best key so far and the block that it came in first.
template <class Extreme> struct record {
  using element = typename Extreme::element;

  typename Extreme::key key   = Extreme::start_key;
  size_t                block = 0;

  void meet(typename Extreme::key k, size_t from) {
    if (Extreme::is_beyond(k, key)) key = k, block = from;
  }

  size_t place(size_t len, const element* src) const {
    using order      = typename Extreme::order;
    const size_t end = end_of_block<element>(block, len), found = first_with<order>(key, block, end, src);
    if (!std::is_floating_point_v<element> || found != end) return found;
    // The block was that of the start, which infinities behind NaNs do not beat; or all elements are NaNs.
    const size_t behind = first_with<order>(key, end, len, src);
    return behind != len ? behind : 0;
  }
};

// A float that is zero may be either of two, and one that the search started with may be no element at all: these are
// sought. Told by the bits, for which no constants have to be read.
template <class Extreme> TAV_INLINE bool must_be_sought(typename Extreme::key k) {
  using key = typename Extreme::key;
  if constexpr (std::is_floating_point_v<key>) {
    using word      = std::conditional_t<sizeof(key) == 4, uint32_t, uint64_t>;
    const auto bits = __builtin_bit_cast(word, k);
    return word(bits << 1) == 0 || bits == __builtin_bit_cast(word, Extreme::start_key);
  }
  return false;
}

// The element that the key of a whole array stands for.
template <class Extreme>
TAV_INLINE typename Extreme::element element_of(typename Extreme::key k, size_t len,
                                                const typename Extreme::element* src) {
  if (must_be_sought<Extreme>(k)) return peek(src + record<Extreme>{k}.place(len, src));
  return Extreme::order::reported(k);
}

// A key found at its place.
template <class Extreme>
TAV_INLINE typename Extreme::element element_at(typename Extreme::key k, size_t place,
                                                const typename Extreme::element* src) {
  if constexpr (std::is_floating_point_v<typename Extreme::element>)
    return peek(src + place);
  else
    return Extreme::order::reported(k);
}

// The argument patterns. Those with four arguments and more are inline: where they are passed on as they came, clang
// moves them in one aligned register, but the callers of 32-bit code align the stack to 4 bytes only.

template <class Order, side Side> struct single : extreme<Order, Side> {
  using src1 = typename Order::element;
  using dst  = src1;
};

// The search is called at the end and out of line, so that most calls need no stack frame.
template <class Op>
[[gnu::noinline]] static TavStatus sought_element(const typename Op::src1* src, size_t len, typename Op::dst* result,
                                                  typename Op::key k) {
  poke(result, element_of<Op>(k, len, src));
  return tavStatusOk;
}

template <class Op> TAV_INLINE TavStatus of_array(const typename Op::src1* src, int len, typename Op::dst* result) {
  if (const TavStatus bad = check_vector(len, src, result)) return bad;
  const auto k = reduce(Op{}, size_t(len), src);
  if (must_be_sought<Op>(k)) return sought_element<Op>(src, size_t(len), result, k);
  poke(result, Op::order::reported(k));
  return tavStatusOk;
}

// The index is optional.
template <class Op>
TAV_INLINE TavStatus single_and_index(const typename Op::src1* src, int len, typename Op::dst* result, int* index) {
  if (index == nullptr) return of_array<Op>(src, len, result);
  if (const TavStatus bad = check_vector(len, src, result)) return bad;
  const size_t n = size_t(len);
  record<Op>   best;
  for (size_t from = 0; from < n; from = end_of_block<typename Op::src1>(from, n))
    best.meet(reduce(Op{}, end_of_block<typename Op::src1>(from, n) - from, src + from), from);
  const size_t place = best.place(n, src);
  poke(result, element_at<Op>(best.key, place, src));
  poke(index, int(place));
  return tavStatusOk;
}

template <class T> TAV_INLINE TavStatus both(const T* src, int len, T* min, T* max) {
  if (const TavStatus bad = check_vector(len, src, min, max)) return bad;
  using op        = both_extremes<order_of<T>>;
  const auto keys = reduce(op{}, size_t(len), src);
  const T    low  = element_of<typename op::low>(keys.low, size_t(len), src);
  const T    high = element_of<typename op::high>(keys.high, size_t(len), src);
  poke(min, low);
  poke(max, high);
  return tavStatusOk;
}

template <class T>
TAV_INLINE TavStatus both_and_indices(const T* src, int len, T* min, int* minIndex, T* max, int* maxIndex) {
  if (const TavStatus bad = check_vector(len, src, min, minIndex, max, maxIndex)) return bad;
  using op       = both_extremes<order_of<T>>;
  const size_t n = size_t(len);

  record<typename op::low>  lowest;
  record<typename op::high> highest;
  for (size_t from = 0; from < n; from = end_of_block<T>(from, n)) {
    const auto keys = reduce(op{}, end_of_block<T>(from, n) - from, src + from);
    lowest.meet(keys.low, from), highest.meet(keys.high, from);
  }
  const size_t low_place = lowest.place(n, src), high_place = highest.place(n, src);
  const T      low  = element_at<typename op::low>(lowest.key, low_place, src);
  const T      high = element_at<typename op::high>(highest.key, high_place, src);
  poke(min, low), poke(minIndex, int(low_place));
  poke(max, high), poke(maxIndex, int(high_place));
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT::extrema
