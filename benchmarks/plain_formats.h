// Conversions of 24-bit integers and half floats as anyone would write them, made by the compiler at -O3 -mssse3.
#pragma once
#include <stdint.h>

namespace plain {

void widen_24(const uint8_t* src, int32_t* dst, int n);
void widen_24(const uint8_t* src, float* dst, int n);
void narrow_to_24(const float* src, uint8_t* dst, int n, int s);

void half_to_float(const uint16_t* src, float* dst, int n);
void float_to_half(const float* src, uint16_t* dst, int n);  // to nearest

}  // namespace plain
