// The kernels of float records, and the filters made of them, as the calls see them.
#pragma once
#include "filter/fir/record.h"
#include "frame/registers.h"

#pragma GCC visibility push(hidden)
namespace tav::TAV_VARIANT::fir {

inline constexpr bool few_registers = sizeof(void*) == 4;  // eight, not sixteen

// Keeps a value from being loaded again for its second use, or kept for the next round in a register too many: gcc does
// both.
template <class R> TAV_INLINE R loaded_once(R v) {
  __asm__ volatile("" : "+x"(v) : : "memory");
  return v;
}

// run_taps: y[i] = sum over k of h[k] x[i + N-1 - k] for i from 0 to n - 1, N the number of taps: x has N - 1 samples
// of history and then n new ones. The arrays lie apart, at any address.
//
// newest_output: the one output where the history ends with the newest sample of the delay line.
#define TAV_FIR_KERNELS(T)                                             \
  void run_taps(const float_record<T>& r, const T* x, T* y, size_t n); \
  T    newest_output(const float_record<T>& r);
TAV_FIR_KERNELS(Tav32f)
TAV_FIR_KERNELS(Tav32fc)
TAV_FIR_KERNELS(Tav64f)
TAV_FIR_KERNELS(Tav64fc)
#undef TAV_FIR_KERNELS

}  // namespace tav::TAV_VARIANT::fir
#pragma GCC visibility pop
