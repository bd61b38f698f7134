// The loops that anyone would write, as the compiler makes them at -O3 -mssse3: peers of the library's functions.
#pragma once
#include <stdint.h>
#include <tavs/types.h>

namespace plain {

void                    copy(const uint8_t* src, uint8_t* dst, int n);
template <class T> void fill(T value, T* dst, int n);
template <class T> void flip(const T* src, T* dst, int n);
template <class T> void flip_in_place(T* data, int n);
template <class T> void swap_bytes(const T* src, T* dst, int n);
template <class T> void swap_bytes_in_place(T* data, int n);
void                    swap_bytes_24(const uint8_t* src, uint8_t* dst, int n);
template <class T> void bitwise_and(const T* a, const T* b, T* dst, int n);
template <class T> void bitwise_xor(const T* src, T value, T* dst, int n);
template <class T> void shift_left(const T* src, int count, T* dst, int n);
template <class T> void shift_right(const T* src, int count, T* dst, int n);
template <class T> void add(const T* a, const T* b, T* dst, int n);
void                    add_constant(const float* src, float val, float* dst, int n);
void                    add_saturating(const int16_t* a, const int16_t* b, int16_t* dst, int n);
void                    multiply(const float* a, const float* b, float* dst, int n);
void                    multiply(const Tav32fc* a, const Tav32fc* b, Tav32fc* dst, int n);
void                    multiply_by(const float* src, float val, float* dst, int n);
void                    multiply_by(const Tav32fc* src, Tav32fc val, Tav32fc* dst, int n);

// Integers, scaled by 2^-s to nearest, ties to even, and saturated.
template <class T> struct pair { T re, im; };
void add_scaled(const int32_t* a, const int32_t* b, int32_t* dst, int n, int s);
void multiply_scaled(const int32_t* a, const int32_t* b, int32_t* dst, int n, int s);
void multiply_scaled(const int32_t* a, int32_t val, int32_t* dst, int n, int s);
void multiply_scaled(const pair<int32_t>* a, const pair<int32_t>* b, pair<int32_t>* dst, int n, int s);
void add_scaled(const int64_t* a, int64_t val, int64_t* dst, int n, int s);

// Bits from the top of each byte.
void copy_bits(const uint8_t* src, int src_bit, uint8_t* dst, int dst_bit, int n);
// Bits from the bottom of each byte.
void copy_bits_from_bottom(const uint8_t* src, int src_bit, uint8_t* dst, int dst_bit, int n);
int  pack_bits(const uint32_t* src, const int32_t* widths, int n, uint8_t* dst);

// r * 2^-s of exact sums, differences (of the second and the first) and products, ties to even, saturated.
template <class T> void add_scaled(const T* a, const T* b, T* dst, int n, int s);
template <class T> void sub_scaled(const T* a, const T* b, T* dst, int n, int s);
template <class T> void mul_scaled(const T* a, const T* b, T* dst, int n, int s);
void                    mul_scaled_pairs(const Tav16sc* a, const Tav16sc* b, Tav16sc* dst, int n, int s);

}  // namespace plain
