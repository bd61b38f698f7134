// The status rows of the calls for cascades.
#include "harness/faults.h"

using namespace test;

namespace {

// numBq, size: the pointer comes first.
void size_query(const tested& f) { faults(f).null(1).below_one(0, tavStatusBadIirOrder).expect(); }

// state, taps, numBq, and behind the line, which may be null, perhaps the memory.
void set_up(const tested& f) {
  const size_t last = f.count - 1;
  faults       bad(f);
  bad.null(0).null(1);
  if (f.is<Tav8u*>(last)) bad.null(last);
  bad.below_one(2, tavStatusBadIirOrder).expect();
}

// A state and its line; the blocks of random bytes are no states.
void get_line(const tested& f) { faults(f).null(0).null(1).add("no state", tavStatusBadContext).expect(); }
void set_line(const tested& f) { faults(f).null(0).add("no state", tavStatusBadContext).expect(); }

// Arrays, length, channels; what the arrays hold is looked at later.
template <TavStatus Too_few> void channels_of(const tested& f) {
  const size_t length = f.is_pointer(1) ? 2 : 1;
  faults(f).null_pointers().below_one(length).below_one(length + 1, Too_few).expect();
}
constexpr auto channels        = channels_of<tavStatusBadChannelCount>;
constexpr auto scaled_channels = channels_of<tavStatusBadChannelCount64>;

// The number of sections, the pointers, the length if there is one.
template <size_t Sections> void direct(const tested& f) {
  const size_t length = Sections - 2;
  faults       bad(f);
  bad.below_one(Sections, tavStatusBadIirOrder).null_pointers();
  if (f.is<int>(length)) bad.below_one(length);
  bad.expect();
}

TAV_FAULTS(IIR64f_32s_IPSfs, scaled_channels)
TAV_FAULTS(IIR64f_32s_PSfs, scaled_channels)
TAV_FAULTS(IIRGetDlyLine64f_DF1_32s, get_line)
TAV_FAULTS(IIRGetStateSize32f_BiQuad_16s, size_query)
TAV_FAULTS(IIRGetStateSize32fc_BiQuad_16sc, size_query)
TAV_FAULTS(IIRGetStateSize32s_BiQuad_16s, size_query)
TAV_FAULTS(IIRGetStateSize32s_BiQuad_16s32f, size_query)
TAV_FAULTS(IIRGetStateSize32sc_BiQuad_16sc, size_query)
TAV_FAULTS(IIRGetStateSize32sc_BiQuad_16sc32fc, size_query)
TAV_FAULTS(IIRGetStateSize64f_BiQuad_16s, size_query)
TAV_FAULTS(IIRGetStateSize64f_BiQuad_32f, size_query)
TAV_FAULTS(IIRGetStateSize64f_BiQuad_32s, size_query)
TAV_FAULTS(IIRGetStateSize64f_BiQuad_DF1_32s, size_query)
TAV_FAULTS(IIRGetStateSize64fc_BiQuad_16sc, size_query)
TAV_FAULTS(IIRGetStateSize64fc_BiQuad_32fc, size_query)
TAV_FAULTS(IIRGetStateSize64fc_BiQuad_32sc, size_query)
TAV_FAULTS(IIRGetStateSize_BiQuad_32f, size_query)
TAV_FAULTS(IIRGetStateSize_BiQuad_32fc, size_query)
TAV_FAULTS(IIRGetStateSize_BiQuad_64f, size_query)
TAV_FAULTS(IIRGetStateSize_BiQuad_64fc, size_query)
TAV_FAULTS(IIRGetStateSize_BiQuad_DF1_32f, size_query)
TAV_FAULTS(IIRInit32f_BiQuad_16s, set_up)
TAV_FAULTS(IIRInit32fc_BiQuad_16sc, set_up)
TAV_FAULTS(IIRInit32s_BiQuad_16s, set_up)
TAV_FAULTS(IIRInit32s_BiQuad_16s32f, set_up)
TAV_FAULTS(IIRInit32sc_BiQuad_16sc, set_up)
TAV_FAULTS(IIRInit32sc_BiQuad_16sc32fc, set_up)
TAV_FAULTS(IIRInit64f_BiQuad_16s, set_up)
TAV_FAULTS(IIRInit64f_BiQuad_32f, set_up)
TAV_FAULTS(IIRInit64f_BiQuad_32s, set_up)
TAV_FAULTS(IIRInit64f_BiQuad_DF1_32s, set_up)
TAV_FAULTS(IIRInit64fc_BiQuad_16sc, set_up)
TAV_FAULTS(IIRInit64fc_BiQuad_32fc, set_up)
TAV_FAULTS(IIRInit64fc_BiQuad_32sc, set_up)
TAV_FAULTS(IIRInitAlloc32f_BiQuad_16s, set_up)
TAV_FAULTS(IIRInitAlloc32fc_BiQuad_16sc, set_up)
TAV_FAULTS(IIRInitAlloc32s_BiQuad_16s, set_up)
TAV_FAULTS(IIRInitAlloc32s_BiQuad_16s32f, set_up)
TAV_FAULTS(IIRInitAlloc32sc_BiQuad_16sc, set_up)
TAV_FAULTS(IIRInitAlloc32sc_BiQuad_16sc32fc, set_up)
TAV_FAULTS(IIRInitAlloc64f_BiQuad_16s, set_up)
TAV_FAULTS(IIRInitAlloc64f_BiQuad_32f, set_up)
TAV_FAULTS(IIRInitAlloc64f_BiQuad_32s, set_up)
TAV_FAULTS(IIRInitAlloc64f_BiQuad_DF1_32s, set_up)
TAV_FAULTS(IIRInitAlloc64fc_BiQuad_16sc, set_up)
TAV_FAULTS(IIRInitAlloc64fc_BiQuad_32fc, set_up)
TAV_FAULTS(IIRInitAlloc64fc_BiQuad_32sc, set_up)
TAV_FAULTS(IIRInitAlloc_BiQuad_32f, set_up)
TAV_FAULTS(IIRInitAlloc_BiQuad_32fc, set_up)
TAV_FAULTS(IIRInitAlloc_BiQuad_64f, set_up)
TAV_FAULTS(IIRInitAlloc_BiQuad_64fc, set_up)
TAV_FAULTS(IIRInitAlloc_BiQuad_DF1_32f, set_up)
TAV_FAULTS(IIRInit_BiQuad_32f, set_up)
TAV_FAULTS(IIRInit_BiQuad_32fc, set_up)
TAV_FAULTS(IIRInit_BiQuad_64f, set_up)
TAV_FAULTS(IIRInit_BiQuad_64fc, set_up)
TAV_FAULTS(IIRInit_BiQuad_DF1_32f, set_up)
TAV_FAULTS(IIROne_BiQuadDirect_16s, direct<3>)
TAV_FAULTS(IIROne_BiQuadDirect_16s_I, direct<2>)
TAV_FAULTS(IIRSetDlyLine64f_DF1_32s, set_line)
TAV_FAULTS(IIR_32f_IP, channels)
TAV_FAULTS(IIR_32f_P, channels)
TAV_FAULTS(IIR_BiQuadDirect_16s, direct<4>)
TAV_FAULTS(IIR_BiQuadDirect_16s_I, direct<3>)

}  // namespace
