// How the vectors of the comparison sort lie in memory. A view loads and stores whole vectors at any element, and
// single elements as the lowest lane of one.
#pragma once
#include "stats/sort/vectors.h"

namespace tav::TAV_VARIANT::sorting {

// Keys as wide as their lanes.
template <int Bytes> struct key_array {
  using vector = key_vector<Bytes>;
  char* p;

  TAV_INLINE vector    load(size_t i) const { return {load_bits<access::unaligned>(p + i * Bytes)}; }
  TAV_INLINE void      store(size_t i, vector v) const { store_bits<access::unaligned>(p + i * Bytes, v.key); }
  TAV_INLINE vector    load_one(size_t i) const { return {load_low<Bytes>(p + i * Bytes)}; }
  TAV_INLINE void      store_one(size_t i, vector v) const { store_low(p + i * Bytes, v.key); }
  TAV_INLINE key_array from(size_t i) const { return {p + i * Bytes}; }

  static TAV_INLINE void store_low(char* to, __m128i v) {
    if constexpr (Bytes == 8)
      _mm_storel_epi64(reinterpret_cast<__m128i*>(to), v);
    else if constexpr (Bytes == 4)
      poke(reinterpret_cast<int*>(to), _mm_cvtsi128_si32(v));
    else
      poke(reinterpret_cast<short*>(to), short(_mm_cvtsi128_si32(v)));
  }
};

// Keys and their indices, both as wide as their lanes: where vectors wait on the stack.
template <int Bytes> struct pair_rows {
  using vector = pair_vector<Bytes>;
  key_array<Bytes> keys, indices;

  TAV_INLINE vector load(size_t i) const { return {keys.load(i).key, indices.load(i).key}; }
  TAV_INLINE void   store(size_t i, vector v) const { keys.store(i, {v.key}), indices.store(i, {v.index}); }
  TAV_INLINE vector load_one(size_t i) const { return {keys.load_one(i).key, indices.load_one(i).key}; }
  TAV_INLINE void   store_one(size_t i, vector v) const { keys.store_one(i, {v.key}), indices.store_one(i, {v.index}); }
  TAV_INLINE pair_rows from(size_t i) const { return {keys.from(i), indices.from(i)}; }
};

// Keys of a type and int indices as a caller has them. Unsigned keys of 8 and 16 bits are widened to lanes of 32.
template <class Key> struct pair_arrays {
  static constexpr int lane_bytes = sizeof(Key) == 8 ? 8 : 4;
  using vector                    = pair_vector<lane_bytes>;
  Key* keys;
  int* indices;

  TAV_INLINE vector load(size_t i) const { return {widened(load_part<16 / lane_bytes>(keys + i)), index_at(i)}; }
  TAV_INLINE void   store(size_t i, vector v) const {
      store_part<16 / lane_bytes>(keys + i, narrowed(v.key));
      if constexpr (lane_bytes == 8)
      store_part<2>(indices + i, _mm_shuffle_epi32(v.index, _MM_SHUFFLE(2, 0, 2, 0)));
    else
      store_part<4>(indices + i, v.index);
  }
  TAV_INLINE vector load_one(size_t i) const {
    __m128i index = load_low<4>(indices + i);
    if constexpr (lane_bytes == 8) index = _mm_shuffle_epi32(index, 0);
    if constexpr (sizeof(Key) == 1)
      return {_mm_cvtsi32_si128(keys[i]), index};
    else
      return {load_low<sizeof(Key)>(keys + i), index};
  }
  TAV_INLINE void store_one(size_t i, vector v) const {
    if constexpr (sizeof(Key) == 8)
      _mm_storel_epi64(reinterpret_cast<__m128i*>(keys + i), v.key);
    else
      poke(keys + i, Key(_mm_cvtsi128_si32(v.key)));
    poke(indices + i, _mm_cvtsi128_si32(v.index));
  }
  TAV_INLINE pair_arrays from(size_t i) const { return {keys + i, indices + i}; }

 private:
  TAV_INLINE __m128i index_at(size_t i) const {
    if constexpr (lane_bytes == 4) return load_part<4>(indices + i);
    const __m128i two = load_part<2>(indices + i);
    return _mm_unpacklo_epi32(two, two);
  }
  template <int N, class T> static TAV_INLINE __m128i load_part(const T* p) {
    if constexpr (N * sizeof(T) == 16)
      return load_bits<access::unaligned>(p);
    else
      return load_low<N * sizeof(T)>(p);
  }
  template <int N, class T> static TAV_INLINE void store_part(T* p, __m128i v) {
    if constexpr (N * sizeof(T) == 16)
      store_bits<access::unaligned>(p, v);
    else
      key_array<N * sizeof(T)>::store_low(reinterpret_cast<char*>(p), v);
  }
  static TAV_INLINE __m128i widened(__m128i v) {
    const __m128i zero = _mm_setzero_si128();
    if constexpr (sizeof(Key) == 1) return _mm_unpacklo_epi16(_mm_unpacklo_epi8(v, zero), zero);
    if constexpr (sizeof(Key) == 2) return _mm_unpacklo_epi16(v, zero);
    return v;
  }
  static TAV_INLINE __m128i narrowed(__m128i v) {
    if constexpr (sizeof(Key) == 1) return _mm_shuffle_epi8(v, _mm_set1_epi32(0x0C080400));
    if constexpr (sizeof(Key) == 2) return _mm_shuffle_epi8(v, _mm_set1_epi64x(0x0D0C090805040100));
    return v;
  }
};

// Room for N elements on the stack.
template <class V, int N> struct waiting_room;
template <int Bytes, int N> struct waiting_room<key_vector<Bytes>, N> {
  alignas(16) char keys[N * Bytes];
  TAV_INLINE key_array<Bytes> view() { return {keys}; }
};
template <int Bytes, int N> struct waiting_room<pair_vector<Bytes>, N> {
  alignas(16) char keys[N * Bytes], indices[N * Bytes];
  TAV_INLINE pair_rows<Bytes> view() { return {{keys}, {indices}}; }
};

// From one view to another, apart from it. What does not fill a vector is covered by one that overlaps the last.
template <class From, class To> TAV_INLINE void copy_elements(From from, To to, size_t n) {
  constexpr size_t lanes = From::vector::lanes;
  size_t           i     = 0;
  for (; i + lanes <= n; i += lanes) to.store(i, from.load(i));
  if (i == n) return;
  if (n >= lanes) return to.store(n - lanes, from.load(n - lanes));
  for (; i < n; ++i) to.store_one(i, from.load_one(i));
}

}  // namespace tav::TAV_VARIANT::sorting
