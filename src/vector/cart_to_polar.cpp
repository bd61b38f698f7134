// tavsCartToPolar_*: magnitudes, then angles, of the same points, by the functions for each. So a second destination
// that is null is noticed only when the magnitudes are written.
#include "frame/bind.h"

namespace tav::TAV_VARIANT {

template <auto* Magnitude, auto* Phase, class C, class F>
TavStatus polar_of_pairs(const C* src, F* dstMagn, F* dstPhase, int len) {
  if (const TavStatus bad = forward<Magnitude>(src, dstMagn, len)) return bad;
  return forward<Phase>(src, dstPhase, len);
}

template <auto* Magnitude, auto* Phase, class F>
TavStatus polar_of_parts(const F* srcRe, const F* srcIm, F* dstMagn, F* dstPhase, int len) {
  if (const TavStatus bad = forward<Magnitude>(srcRe, srcIm, dstMagn, len)) return bad;
  return forward<Phase>(srcRe, srcIm, dstPhase, len);
}

static TavStatus polar_16sc(const Tav16sc* src, Tav16s* dstMagn, Tav16s* dstPhase, int len, int magnScaleFactor,
                            int phaseScaleFactor) {
  if (const TavStatus bad = forward<&::tavsMagnitude_16sc_Sfs>(src, dstMagn, len, magnScaleFactor)) return bad;
  return forward<&::tavsPhase_16sc_Sfs>(src, dstPhase, len, phaseScaleFactor);
}

TAV_BIND(CartToPolar_16sc_Sfs, &polar_16sc)
TAV_BIND(CartToPolar_32f, (&polar_of_parts<&::tavsMagnitude_32f, &::tavsPhase_32f, Tav32f>))
TAV_BIND(CartToPolar_64f, (&polar_of_parts<&::tavsMagnitude_64f, &::tavsPhase_64f, Tav64f>))
TAV_BIND(CartToPolar_32fc, (&polar_of_pairs<&::tavsMagnitude_32fc, &::tavsPhase_32fc, Tav32fc, Tav32f>))
TAV_BIND(CartToPolar_64fc, (&polar_of_pairs<&::tavsMagnitude_64fc, &::tavsPhase_64fc, Tav64fc, Tav64f>))

}  // namespace tav::TAV_VARIANT
