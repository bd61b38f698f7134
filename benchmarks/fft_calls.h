// Transforms as objects: plans of FFTW's, in both precisions under one name, and contexts of ours.
#pragma once
#include <fftw3.h>
#include <tavs.h>

#include <memory>

namespace bench {

// FFTW in both precisions under one name.
template <class T> struct fftw;
template <> struct fftw<Tav32f> {
  using plan                           = fftwf_plan;
  using pair                           = fftwf_complex;
  using length                         = fftwf_iodim;
  static constexpr auto execute        = fftwf_execute;
  static constexpr auto destroy        = fftwf_destroy_plan;
  static constexpr auto plan_complex   = fftwf_plan_dft_1d;
  static constexpr auto plan_split     = fftwf_plan_guru_split_dft;
  static constexpr auto plan_real      = fftwf_plan_dft_r2c_1d;
  static constexpr auto plan_from_real = fftwf_plan_dft_c2r_1d;
};
template <> struct fftw<Tav64f> {
  using plan                           = fftw_plan;
  using pair                           = fftw_complex;
  using length                         = fftw_iodim;
  static constexpr auto execute        = fftw_execute;
  static constexpr auto destroy        = fftw_destroy_plan;
  static constexpr auto plan_complex   = fftw_plan_dft_1d;
  static constexpr auto plan_split     = fftw_plan_guru_split_dft;
  static constexpr auto plan_real      = fftw_plan_dft_r2c_1d;
  static constexpr auto plan_from_real = fftw_plan_dft_c2r_1d;
};

// A plan of FFTW's for one scope.
template <class T> class fftw_plan_of {
 public:
  explicit fftw_plan_of(typename fftw<T>::plan plan) : plan_(plan) {}
  ~fftw_plan_of() { fftw<T>::destroy(plan_); }
  fftw_plan_of(const fftw_plan_of&)            = delete;
  fftw_plan_of& operator=(const fftw_plan_of&) = delete;

  void execute() { fftw<T>::execute(plan_); }

 private:
  typename fftw<T>::plan plan_;
};

// A context of ours and its work area for one scope.
template <class Record, TavStatus (*InitAlloc)(Record**, int, int, int), TavStatus (*Free)(Record*),
          TavStatus (*GetBufSize)(const Record*, int*)>
class fft_context {
 public:
  static constexpr auto init_alloc = InitAlloc;
  static constexpr auto free       = Free;
  using record                     = Record;

  explicit fft_context(int order) {
    int size = 0;
    InitAlloc(&record_, order, fftScaleNone, 0);
    GetBufSize(record_, &size);
    work_ = std::make_unique<Tav8u[]>(size_t(size) + 1);
  }
  ~fft_context() { Free(record_); }
  fft_context(const fft_context&)            = delete;
  fft_context& operator=(const fft_context&) = delete;

  const Record* get() const { return record_; }
  Tav8u*        work() const { return work_.get(); }

 private:
  Record*                  record_ = nullptr;
  std::unique_ptr<Tav8u[]> work_;
};

#define BENCH_FFT_CONTEXT(type) \
  fft_context<FftContext_##type, tavsFFTInitAlloc_##type, tavsFFTFree_##type, tavsFFTGetBufSize_##type>

}  // namespace bench
