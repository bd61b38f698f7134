// The calls of the real transforms in floats, as templates over the format. In place is out of place with dst for src.
#pragma once
#include "transform/fft/real.h"
#include "transform/fft/real_formats.h"
#include "transform/fft/records.h"

namespace tav::TAV_VARIANT::fft {

// One point has no middle bin to be read.
template <class Format, class T> half_spectrum<T> spectrum_in(const T* src, size_t n) {
  return {peek(src), n == 1 ? T(0) : peek(src + Format::middle(n)), src + Format::first_pair(n)};
}

template <class Format, class T, class Record>
TavStatus forward_to(const T* src, T* dst, const Record* ctx, Tav8u* buf) {
  if (const TavStatus bad = check_transform<id_of<Record>>(ctx, src, dst)) return bad;
  const auto&       r = opened(ctx);
  const work_buffer work(buf, r.buf_size);
  if (work.failed()) return tavStatusNoMemory;
  run_forward(r, src, dst, work.data());
  Format::from_perm(dst, size_t(1) << r.order);
  return tavStatusOk;
}

template <class Format, class T, class Record> TavStatus forward_in_place_to(T* srcDst, const Record* ctx, Tav8u* buf) {
  return forward_to<Format, T>(srcDst, srcDst, ctx, buf);
}

// Out of place the spectrum is read where it stands; in place its pairs are brought to where the points will be.
template <class Format, class T, class Record>
TavStatus inverse_from(const T* src, T* dst, const Record* ctx, Tav8u* buf) {
  if (const TavStatus bad = check_transform<id_of<Record>>(ctx, src, dst)) return bad;
  const auto&       r = opened(ctx);
  const work_buffer work(buf, r.buf_size);
  if (work.failed()) return tavStatusNoMemory;
  const size_t n = size_t(1) << r.order;
  if constexpr (Format::moves) {
    if (src == dst) {
      Format::to_perm(dst, n);
      run_inverse(r, spectrum_in<perm>(src, n), dst, work.data());
      return tavStatusOk;
    }
  }
  run_inverse(r, spectrum_in<Format>(src, n), dst, work.data());
  return tavStatusOk;
}

template <class Format, class T, class Record>
TavStatus inverse_in_place_from(T* srcDst, const Record* ctx, Tav8u* buf) {
  return inverse_from<Format, T>(srcDst, srcDst, ctx, buf);
}

}  // namespace tav::TAV_VARIANT::fft
