// Coefficients of the arctangent: atan(q) = q + q^3 * (c[0] + c[1] q^2 + c[2] q^4 + ...) for q from 0 to 1.
//
// Minimax of the relative error, by the Remez exchange in 60 decimal digits. Coefficients were rounded one after the
// other, lowest power first, and those after it fitted anew each time. In single precision a search among the
// neighbours then took those that give pi / 4 at 1. What remains is an error of 2^-28.3 in single and of 2^-57.6 in
// double precision. They are evaluated in blocks of so many terms.
#pragma once
#include "tavs/types.h"

namespace tav {

template <class F> struct arctangent_terms;

template <> struct arctangent_terms<Tav32f> {
  static constexpr int    count = 9, block = 3;
  static constexpr Tav32f c[] = {-0x1.55553ep-2f, 0x1.9991e4p-3f,  -0x1.242088p-3f, 0x1.c08c5ap-4f,  -0x1.580936p-4f,
                                 0x1.da2a9ep-5f,  -0x1.fd800ap-6f, 0x1.6427f2p-7f,  -0x1.d3613ep-10f};
};

template <> struct arctangent_terms<Tav64f> {
  static constexpr int    count = 20, block = 4;
  static constexpr Tav64f c[] = {
      -0x1.5555555555526p-2, 0x1.99999999955b1p-3,  -0x1.249249237f4aep-3,  0x1.c71c717fcc88bp-4,
      -0x1.745d11ae446ffp-4, 0x1.3b13669825addp-4,  -0x1.110e511800a0dp-4,  0x1.e1bba5ca0d743p-5,
      -0x1.ae5e70300d17ap-5, 0x1.82dacfa9230c5p-5,  -0x1.59a3ec1419f73p-5,  0x1.2c2e39189a4b9p-5,
      -0x1.e9f9a5543ae77p-6, 0x1.683c531ca91a8p-6,  -0x1.c78efeb66e76bp-7,  0x1.d7b81809bdefap-8,
      -0x1.7a38968153becp-9, 0x1.b3f974e47c314p-11, -0x1.3f3537c5eb803p-13, 0x1.bbebff75ea626p-17};
};

}  // namespace tav
