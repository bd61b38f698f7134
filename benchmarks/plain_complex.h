// Plain loops over complex arrays.
#pragma once
#include <stdint.h>
#include <tavs/types.h>

namespace plain {

void real_parts(const Tav32fc* src, float* dst, int n);
void take_apart(const Tav32fc* src, float* re, float* im, int n);
void join(const float* re, const float* im, Tav32fc* dst, int n);
void conjugate(const Tav32fc* src, Tav32fc* dst, int n);
void conjugate_flipped(const Tav32fc* src, Tav32fc* dst, int n);
void magnitude(const Tav32fc* src, float* dst, int n);
void power(const Tav32fc* src, float* dst, int n);

// To nearest, saturated.
void magnitude_scaled(const Tav16sc* src, int16_t* dst, int n, int s);
void magnitude_scaled(const Tav32sc* src, int32_t* dst, int n, int s);

}  // namespace plain
