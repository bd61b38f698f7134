// The loops that anyone would write, as the compiler makes them at -O3 -mssse3: peers of the library's functions.
#pragma once
#include <stdint.h>

namespace plain {

void                    copy(const uint8_t* src, uint8_t* dst, int n);
template <class T> void fill(T value, T* dst, int n);
template <class T> void flip(const T* src, T* dst, int n);
template <class T> void flip_in_place(T* data, int n);
template <class T> void swap_bytes(const T* src, T* dst, int n);
template <class T> void swap_bytes_in_place(T* data, int n);
void                    swap_bytes_24(const uint8_t* src, uint8_t* dst, int n);
void                    add(const float* a, const float* b, float* dst, int n);

// Bits from the top of each byte.
void copy_bits(const uint8_t* src, int src_bit, uint8_t* dst, int dst_bit, int n);
// Bits from the bottom of each byte.
void copy_bits_from_bottom(const uint8_t* src, int src_bit, uint8_t* dst, int dst_bit, int n);
int  pack_bits(const uint32_t* src, const int32_t* widths, int n, uint8_t* dst);

}  // namespace plain
