// The patterns of the Direct calls, which keep no state: taps and delay line are arguments.
#pragma once
#include "filter/fir/callers_line.h"
#include "frame/checks.h"

namespace tav::TAV_VARIANT::fir {

// Types, how the sums are made, and how they become results: Output is made of the scale factor, or of nothing.
template <class Taps, class Data, class Sums, class Output> struct direct_form {
  using taps   = Taps;
  using data   = Data;
  using sums   = Sums;
  using output = Output;
};

// Data, the length, taps and their number, the delay line last.
template <class... P>
TAV_INLINE TavStatus check_direct(int len, const void* taps, int tapsLen, const void* dly, const int* dlyIndex,
                                  const P*... data) {
  if (const TavStatus bad = check_vector(len, data...)) return bad;
  if (!taps) return tavStatusNullPointer;
  if (tapsLen < 1) return tavStatusBadFirLength;
  return any_null(dly, dlyIndex) ? tavStatusNullPointer : tavStatusOk;
}

// The two halves of a ring need not agree when the call begins: until each place has been written once, a piece reads
// one window's worth of past and ends where the ring does.
template <class Form, class D = typename Form::data>
void filter_by(const D* src, D* dst, size_t len, const typename Form::taps* taps, size_t tapsLen, D* dly, int* dlyIndex,
               const typename Form::output& output) {
  callers_line<D>     line(dly, dlyIndex, tapsLen);
  typename Form::sums sums;
  for (size_t done = 0; done < len;) {
    const size_t left = len - done, to_end = tapsLen - line.window_start();
    size_t       n = left < sums.at_once ? left : sums.at_once;
    if (done < tapsLen && n > to_end) n = to_end;
    sums.run(joined_signal<D>{line.window(), tapsLen - 1, src + done}, taps, tapsLen, n);
    line.push(src + done, n);
    output(sums.sums(), dst + done, n);
    done += n;
  }
  poke(dlyIndex, line.index());
}

template <class Form, class D = typename Form::data>
TavStatus filter_block_by(const D* src, D* dst, int len, const typename Form::taps* taps, int tapsLen, D* dly,
                          int* dlyIndex, const typename Form::output& output) {
  if (const TavStatus bad = check_direct(len, taps, tapsLen, dly, dlyIndex, src, dst)) return bad;
  filter_by<Form>(src, dst, size_t(len), taps, size_t(tapsLen), dly, dlyIndex, output);
  return tavStatusOk;
}

template <class Form, class D = typename Form::data>
TavStatus filter_one_by(D val, D* dst, const typename Form::taps* taps, int tapsLen, D* dly, int* dlyIndex,
                        const typename Form::output& output) {
  if (const TavStatus bad = check_direct(1, taps, tapsLen, dly, dlyIndex, dst)) return bad;
  const size_t    n = size_t(tapsLen);
  callers_line<D> line(dly, dlyIndex, n);
  const D* const  window = line.window();
  line.push(val);
  const auto sum = Form::sums::newest(window, taps, n);
  output(&sum, dst, 1);
  poke(dlyIndex, line.index());
  return tavStatusOk;
}

// As the exports have them. Scale is int for those with a scale factor, and nothing for the others.
template <class Form, class... Scale> struct direct_calls {
  using taps = typename Form::taps;
  using data = typename Form::data;

  static TavStatus block(const data* src, data* dst, int len, const taps* h, int tapsLen, data* dly, int* dlyIndex,
                         Scale... scaleFactor) {
    return filter_block_by<Form>(src, dst, len, h, tapsLen, dly, dlyIndex, typename Form::output(scaleFactor...));
  }
  static TavStatus in_place(data* srcDst, int len, const taps* h, int tapsLen, data* dly, int* dlyIndex,
                            Scale... scaleFactor) {
    return block(srcDst, srcDst, len, h, tapsLen, dly, dlyIndex, scaleFactor...);
  }
  static TavStatus one(data val, data* dst, const taps* h, int tapsLen, data* dly, int* dlyIndex,
                       Scale... scaleFactor) {
    return filter_one_by<Form>(val, dst, h, tapsLen, dly, dlyIndex, typename Form::output(scaleFactor...));
  }
  static TavStatus one_in_place(data* srcDst, const taps* h, int tapsLen, data* dly, int* dlyIndex,
                                Scale... scaleFactor) {
    return srcDst ? one(peek(srcDst), srcDst, h, tapsLen, dly, dlyIndex, scaleFactor...) : tavStatusNullPointer;
  }
};

// With the exponent of integer taps besides.
template <class Form> struct factored_direct_calls {
  using taps = typename Form::taps;
  using data = typename Form::data;

  static TavStatus block(const data* src, data* dst, int len, const taps* h, int tapsLen, int tapsFactor, data* dly,
                         int* dlyIndex, int scaleFactor) {
    const typename Form::output output(tapsFactor, scaleFactor);
    return filter_block_by<Form>(src, dst, len, h, tapsLen, dly, dlyIndex, output);
  }
  static TavStatus in_place(data* srcDst, int len, const taps* h, int tapsLen, int tapsFactor, data* dly, int* dlyIndex,
                            int scaleFactor) {
    return block(srcDst, srcDst, len, h, tapsLen, tapsFactor, dly, dlyIndex, scaleFactor);
  }
  static TavStatus one(data val, data* dst, const taps* h, int tapsLen, int tapsFactor, data* dly, int* dlyIndex,
                       int scaleFactor) {
    return filter_one_by<Form>(val, dst, h, tapsLen, dly, dlyIndex, typename Form::output(tapsFactor, scaleFactor));
  }
  static TavStatus one_in_place(data* srcDst, const taps* h, int tapsLen, int tapsFactor, data* dly, int* dlyIndex,
                                int scaleFactor) {
    if (!srcDst) return tavStatusNullPointer;
    return one(peek(srcDst), srcDst, h, tapsLen, tapsFactor, dly, dlyIndex, scaleFactor);
  }
};

}  // namespace tav::TAV_VARIANT::fir
