// Size query, set-up and release of the records in floats. The set-up is in steps, which the real transforms share.
#pragma once
#include "frame/checks.h"
#include "frame/rounding.h"
#include "transform/fft/engine.h"

namespace tav::TAV_VARIANT::fft {

inline constexpr int highest_order = 30;

inline bool legal(int flag) {
  return flag == fftScaleForward || flag == fftScaleInverse || flag == fftScaleBoth || flag == fftScaleNone;
}

// The range of orders comes first, then the pointers, the flag, and the limit of the record.
inline TavStatus check_sizes(int order, int flag, int limit, const int* spec, const int* init, const int* work) {
  if (unsigned(order) > unsigned(highest_order)) return tavStatusBadOrder;
  if (any_null(spec, init, work)) return tavStatusNullPointer;
  if (!legal(flag)) return tavStatusBadFlag;
  return order > limit ? tavStatusBadOrder : tavStatusOk;
}

inline void report(const fft_sizes& sizes, int* spec, int* init, int* work) {
  *spec = sizes.spec;
  *init = sizes.init;
  *work = sizes.work;
}

// 1/N in the record's precision, 1/sqrt(N) in double precision and then narrowed; under the rounding scope of the
// caller.
template <class T> T scale_of(int order, int flag) {
  const double n = held(double(int64_t(1) << order));
  if (flag == fftScaleBoth) return T(1.0 / root(n));
  return T(1) / T(n);
}

// A record without an id yet, its flag stored. A failed set-up leaves it so.
template <class T> TavStatus start_record(fft_record<T>* r, int order, int flag, int hint) {
  *r = {};
  if (!legal(flag)) return tavStatusBadFlag;
  r->order         = order;
  r->hint          = hint;
  r->scale_forward = flag == fftScaleForward || flag == fftScaleBoth;
  r->scale_inverse = flag == fftScaleInverse || flag == fftScaleBoth;
  if (flag != fftScaleNone)
    for (T& lane : r->scale) lane = scale_of<T>(order, flag);
  return tavStatusOk;
}

// What a record of the order that is stored needs behind its head: the tables, and the size of the work area.
template <class T> TavStatus fill_complex(fft_record<T>* r, Tav8u* init);
template <class T> TavStatus fill_real(fft_record<T>* r, Tav8u* init);

#define TAV_FFT_TABLES(declare, T)                                 \
  declare template TavStatus fill_complex(fft_record<T>*, Tav8u*); \
  declare template TavStatus fill_real(fft_record<T>*, Tav8u*);
TAV_FFT_TABLES(extern, Tav32f)
TAV_FFT_TABLES(extern, Tav64f)

}  // namespace tav::TAV_VARIANT::fft
