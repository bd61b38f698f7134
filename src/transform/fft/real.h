// The real transforms as their callers inside the library see them. Spectra are in the order of the Perm format: the
// real bins 0 and N/2, then the complex bins 1 ... N/2 - 1.
#pragma once
#include "transform/fft/engine.h"

namespace tav::TAV_VARIANT::fft {

// A spectrum to be read, in whatever format.
template <class T> struct half_spectrum {
  T        first, middle;  // bins 0 and N/2
  const T* bins;           // bins 1 ... N/2 - 1
};

// `work` has the bytes that the record says, on a 64-byte boundary. dst may be src; the spectrum may stand in dst in
// Perm order.
template <class T> void run_forward(const fft_record<T>& r, const T* src, T* dst, void* work);
template <class T> void run_inverse(const fft_record<T>& r, const half_spectrum<T>& src, T* dst, void* work);

// Of orders up to real_direct_to, without tables.
template <class T> void run_short_forward(int order, const T* scale, const T* src, T* dst);
template <class T> void run_short_inverse(int order, const T* scale, const half_spectrum<T>& src, T* dst);

#define TAV_FFT_REAL(declare, T)                                                \
  declare template void run_forward(const fft_record<T>&, const T*, T*, void*); \
  declare template void run_inverse(const fft_record<T>&, const half_spectrum<T>&, T*, void*);
#define TAV_FFT_REAL_SHORT(declare, T)                                  \
  declare template void run_short_forward(int, const T*, const T*, T*); \
  declare template void run_short_inverse(int, const T*, const half_spectrum<T>&, T*);
TAV_FFT_REAL(extern, Tav32f)
TAV_FFT_REAL(extern, Tav64f)
TAV_FFT_REAL_SHORT(extern, Tav32f)
TAV_FFT_REAL_SHORT(extern, Tav64f)

}  // namespace tav::TAV_VARIANT::fft
