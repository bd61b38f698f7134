// The status rows of the IIR filters of arbitrary order.
#include "filter/iir_faults.h"

using namespace test;

#define CASE(form)                                          \
  TAV_FAULTS(IIRGetStateSize##form, iir_faults::size_query) \
  TAV_FAULTS(IIRFree##form, iir_faults::free_state)         \
  TAV_FAULTS(IIRGetDlyLine##form, iir_faults::get_delay)    \
  TAV_FAULTS(IIRSetDlyLine##form, iir_faults::set_delay)    \
  TAV_FAULTS(IIRSetTaps##form, iir_faults::set_taps)
CASE(_32f)
CASE(_32fc)
CASE(32f_16s)
CASE(32fc_16sc)
CASE(32s_16s)
CASE(32sc_16sc)
CASE(_64f)
CASE(_64fc)
CASE(64f_32f)
CASE(64fc_32fc)
CASE(64f_32s)
CASE(64fc_32sc)
CASE(64f_16s)
CASE(64fc_16sc)
#undef CASE

#define CASE(form)                            \
  TAV_FAULTS(IIRInit##form, iir_faults::init) \
  TAV_FAULTS(IIRInitAlloc##form, iir_faults::init_alloc)
CASE(_32f)
CASE(_32fc)
CASE(32f_16s)
CASE(32fc_16sc)
CASE(_64f)
CASE(_64fc)
CASE(64f_32f)
CASE(64fc_32fc)
CASE(64f_32s)
CASE(64fc_32sc)
CASE(64f_16s)
CASE(64fc_16sc)
#undef CASE

#define CASE(form)                                        \
  TAV_FAULTS(IIRInit##form, iir_faults::init_scaled_taps) \
  TAV_FAULTS(IIRInitAlloc##form, iir_faults::init_alloc)
CASE(32s_16s)
CASE(32sc_16sc)
#undef CASE

#define CASE(form)                                          \
  TAV_FAULTS(IIRGetStateSize##form, iir_faults::size_query) \
  TAV_FAULTS(IIRInit##form, iir_faults::init)               \
  TAV_FAULTS(IIRInitAlloc##form, iir_faults::init_alloc)    \
  TAV_FAULTS(IIRSetTaps##form, iir_faults::set_taps)
CASE(32s_16s32f)
CASE(32sc_16sc32fc)
#undef CASE

#define CASE(form)                                \
  TAV_FAULTS(IIR##form, iir_faults::block)        \
  TAV_FAULTS(IIR##form##_I, iir_faults::in_place) \
  TAV_FAULTS(IIROne##form, iir_faults::one)
CASE(_32f)
CASE(_32fc)
CASE(_64f)
CASE(_64fc)
CASE(64f_32f)
CASE(64fc_32fc)
#undef CASE

#define CASE(form)                                   \
  TAV_FAULTS(IIR##form##_Sfs, iir_faults::block)     \
  TAV_FAULTS(IIR##form##_ISfs, iir_faults::in_place) \
  TAV_FAULTS(IIROne##form##_Sfs, iir_faults::one)
CASE(32f_16s)
CASE(32fc_16sc)
CASE(32s_16s)
CASE(32sc_16sc)
CASE(64f_32s)
CASE(64fc_32sc)
CASE(64f_16s)
CASE(64fc_16sc)
#undef CASE

TAV_FAULTS(IIR_Direct_16s, iir_faults::direct)
TAV_FAULTS(IIR_Direct_16s_I, iir_faults::direct_in_place)
TAV_FAULTS(IIROne_Direct_16s, iir_faults::one_direct)
TAV_FAULTS(IIROne_Direct_16s_I, iir_faults::one_direct_in_place)
