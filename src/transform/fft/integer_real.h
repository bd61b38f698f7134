// The exports of the real transforms of integers, as templates over the format and the record. Inside, a spectrum is in
// Perm order; the other formats are made of integers.
#pragma once
#include "transform/fft/integer_calls.h"
#include "transform/fft/real_formats.h"

namespace tav::TAV_VARIANT::fft {

template <class Format, class S, class D> struct forward_reals {
  const S* src;
  D*       dst;

  template <class F> void fetch(F* area, size_t n) const { to_floats(src, area, n); }
  template <class F> void deliver(const F* area, size_t n, int scaleFactor) const {
    to_integers(area, dst, n, scaleFactor);
    Format::from_perm(dst, n);
  }
  template <auto* Nested, class F, class Record>
  TavStatus transform(F* area, size_t, const Record* ctx, Tav8u* buf) const {
    return forward<Nested>(area, ctx, buf);
  }
  void run_fixed(const shared::fixed_transform& t) const {
    shared::run_fixed_real(t, src, dst);
    Format::from_perm(dst, size_t(1) << t.order);
  }
};

template <class Format, class S, class D> struct inverse_reals {
  static constexpr bool in_perm = std::is_same_v<Format, perm>;

  const S* src;
  D*       dst;

  template <class F> void fetch(F* area, size_t n) const {
    if constexpr (Format::moves) {
      area[0] = F(peek(src));
      if (n > 2) to_floats(src + Format::first_pair(n), area + 2, n - 2);
    } else {
      to_floats(src, area, n);
    }
    if (n > 1 && !in_perm) area[1] = F(peek(src + Format::middle(n)));
  }
  template <class F> void deliver(const F* area, size_t n, int scaleFactor) const {
    to_integers(area, dst, n, scaleFactor);
  }
  template <auto* Nested, class F, class Record>
  TavStatus transform(F* area, size_t, const Record* ctx, Tav8u* buf) const {
    return forward<Nested>(area, ctx, buf);
  }
  void run_fixed(const shared::fixed_transform& t) const {
    if constexpr (in_perm) return shared::run_fixed_real(t, src, dst);
    S            moved[size_t(1) << shared::fixed_point_to];
    const size_t n = size_t(1) << t.order;
    moved[0]       = peek(src);
    if (n > 1) moved[1] = peek(src + Format::middle(n));
    for (size_t i = 2; i < n; ++i) moved[i] = peek(src + Format::first_pair(n) + i - 2);
    shared::run_fixed_real(t, moved, dst);
  }
};

template <class Format, class S, class D, class Record>
TavStatus integer_forward_to(const S* src, D* dst, const Record* ctx, int scaleFactor, Tav8u* buf) {
  if (const TavStatus bad = check_transform<integer_traits<Record>::id>(ctx, src, dst)) return bad;
  return transform_integers<direction::forward>(ctx, forward_reals<Format, S, D>{src, dst}, scaleFactor, buf);
}

template <class Format, class T, class Record>
TavStatus integer_forward_in_place_to(T* srcDst, const Record* ctx, int scaleFactor, Tav8u* buf) {
  return integer_forward_to<Format, T>(srcDst, srcDst, ctx, scaleFactor, buf);
}

template <class Format, class S, class D, class Record>
TavStatus integer_inverse_from(const S* src, D* dst, const Record* ctx, int scaleFactor, Tav8u* buf) {
  if (const TavStatus bad = check_transform<integer_traits<Record>::id>(ctx, src, dst)) return bad;
  return transform_integers<direction::inverse>(ctx, inverse_reals<Format, S, D>{src, dst}, scaleFactor, buf);
}

template <class Format, class T, class Record>
TavStatus integer_inverse_in_place_from(T* srcDst, const Record* ctx, int scaleFactor, Tav8u* buf) {
  return integer_inverse_from<Format, T>(srcDst, srcDst, ctx, scaleFactor, buf);
}

}  // namespace tav::TAV_VARIANT::fft
