// Plain loops over packed spectra.
#pragma once
#include <stdint.h>
#include <tavs/types.h>

namespace plain {

void mul_pack(const float* a, const float* b, float* dst, int n);
void mul_pack(const double* a, const double* b, double* dst, int n);
void mul_pack_conj(const float* a, float* dst, int n);
void mul_perm(const float* a, const float* b, float* dst, int n);

// Shifted down by s, saturated.
void mul_perm_shifted(const int16_t* a, const int16_t* b, int16_t* dst, int n, int s);

void expand_ccs(const Tav32fc* src, Tav32fc* dst, int n);
void expand_pack(const float* src, Tav32fc* dst, int n);
void expand_pack(const double* src, Tav64fc* dst, int n);
void expand_perm(const int16_t* src, Tav16sc* dst, int n);

}  // namespace plain
