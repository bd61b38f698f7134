// Sizes and set-up of the cascades. Everything else that a state can do is one call for all structures.
#include "filter/iir/accessors.h"

namespace tav::TAV_VARIANT {
namespace iir {

// The delay line of the cascade in direct form 1 that has calls of its own for it.
template <class... P> TavStatus check_df1(const IIRState64f_32s* state, const P*... p) {
  if (any_null(state, p...)) return tavStatusNullPointer;
  return has_id<record_id::iir_df1_64f_32s>(state) ? tavStatusOk : tavStatusBadContext;
}

static TavStatus get_delay_df1(const IIRState64f_32s* state, Tav64f* dly) {
  if (const TavStatus bad = check_df1(state, dly)) return bad;
  return take_delay(state, dly);
}

static TavStatus set_delay_df1(IIRState64f_32s* state, const Tav64f* dly) {
  if (const TavStatus bad = check_df1(state)) return bad;
  store_delay<IIRState64f_32s>(opened(state), dly);
  return tavStatusOk;
}

}  // namespace iir

using iir::biquads;
using iir::biquads_df1;

TAV_BIND(IIRGetStateSize_BiQuad_32f, (&iir::state_size<biquads, IIRState_32f>))
TAV_BIND(IIRInit_BiQuad_32f, (&iir::init<biquads, IIRState_32f>))
TAV_BIND(IIRInitAlloc_BiQuad_32f, (&iir::init_alloc<biquads, IIRState_32f>))
TAV_BIND(IIRGetStateSize_BiQuad_32fc, (&iir::state_size<biquads, IIRState_32fc>))
TAV_BIND(IIRInit_BiQuad_32fc, (&iir::init<biquads, IIRState_32fc>))
TAV_BIND(IIRInitAlloc_BiQuad_32fc, (&iir::init_alloc<biquads, IIRState_32fc>))
TAV_BIND(IIRGetStateSize_BiQuad_64f, (&iir::state_size<biquads, IIRState_64f>))
TAV_BIND(IIRInit_BiQuad_64f, (&iir::init<biquads, IIRState_64f>))
TAV_BIND(IIRInitAlloc_BiQuad_64f, (&iir::init_alloc<biquads, IIRState_64f>))
TAV_BIND(IIRGetStateSize_BiQuad_64fc, (&iir::state_size<biquads, IIRState_64fc>))
TAV_BIND(IIRInit_BiQuad_64fc, (&iir::init<biquads, IIRState_64fc>))
TAV_BIND(IIRInitAlloc_BiQuad_64fc, (&iir::init_alloc<biquads, IIRState_64fc>))

TAV_BIND(IIRGetStateSize32f_BiQuad_16s, (&iir::state_size<biquads, IIRState32f_16s>))
TAV_BIND(IIRInit32f_BiQuad_16s, (&iir::init<biquads, IIRState32f_16s>))
TAV_BIND(IIRInitAlloc32f_BiQuad_16s, (&iir::init_alloc<biquads, IIRState32f_16s>))
TAV_BIND(IIRGetStateSize32fc_BiQuad_16sc, (&iir::state_size<biquads, IIRState32fc_16sc>))
TAV_BIND(IIRInit32fc_BiQuad_16sc, (&iir::init<biquads, IIRState32fc_16sc>))
TAV_BIND(IIRInitAlloc32fc_BiQuad_16sc, (&iir::init_alloc<biquads, IIRState32fc_16sc>))
TAV_BIND(IIRGetStateSize64f_BiQuad_16s, (&iir::state_size<biquads, IIRState64f_16s>))
TAV_BIND(IIRInit64f_BiQuad_16s, (&iir::init<biquads, IIRState64f_16s>))
TAV_BIND(IIRInitAlloc64f_BiQuad_16s, (&iir::init_alloc<biquads, IIRState64f_16s>))
TAV_BIND(IIRGetStateSize64fc_BiQuad_16sc, (&iir::state_size<biquads, IIRState64fc_16sc>))
TAV_BIND(IIRInit64fc_BiQuad_16sc, (&iir::init<biquads, IIRState64fc_16sc>))
TAV_BIND(IIRInitAlloc64fc_BiQuad_16sc, (&iir::init_alloc<biquads, IIRState64fc_16sc>))
TAV_BIND(IIRGetStateSize64f_BiQuad_32f, (&iir::state_size<biquads, IIRState64f_32f>))
TAV_BIND(IIRInit64f_BiQuad_32f, (&iir::init<biquads, IIRState64f_32f>))
TAV_BIND(IIRInitAlloc64f_BiQuad_32f, (&iir::init_alloc<biquads, IIRState64f_32f>))
TAV_BIND(IIRGetStateSize64fc_BiQuad_32fc, (&iir::state_size<biquads, IIRState64fc_32fc>))
TAV_BIND(IIRInit64fc_BiQuad_32fc, (&iir::init<biquads, IIRState64fc_32fc>))
TAV_BIND(IIRInitAlloc64fc_BiQuad_32fc, (&iir::init_alloc<biquads, IIRState64fc_32fc>))
TAV_BIND(IIRGetStateSize64f_BiQuad_32s, (&iir::state_size<biquads, IIRState64f_32s>))
TAV_BIND(IIRInit64f_BiQuad_32s, (&iir::init<biquads, IIRState64f_32s>))
TAV_BIND(IIRInitAlloc64f_BiQuad_32s, (&iir::init_alloc<biquads, IIRState64f_32s>))
TAV_BIND(IIRGetStateSize64fc_BiQuad_32sc, (&iir::state_size<biquads, IIRState64fc_32sc>))
TAV_BIND(IIRInit64fc_BiQuad_32sc, (&iir::init<biquads, IIRState64fc_32sc>))
TAV_BIND(IIRInitAlloc64fc_BiQuad_32sc, (&iir::init_alloc<biquads, IIRState64fc_32sc>))

// With taps of integers, and the same states with taps of floats.
TAV_BIND(IIRGetStateSize32s_BiQuad_16s, (&iir::state_size<biquads, IIRState32s_16s>))
TAV_BIND(IIRInit32s_BiQuad_16s, (&iir::init_converted<biquads, IIRState32s_16s>))
TAV_BIND(IIRInitAlloc32s_BiQuad_16s, (&iir::init_alloc_converted<biquads, IIRState32s_16s>))
TAV_BIND(IIRGetStateSize32sc_BiQuad_16sc, (&iir::state_size<biquads, IIRState32sc_16sc>))
TAV_BIND(IIRInit32sc_BiQuad_16sc, (&iir::init_converted<biquads, IIRState32sc_16sc>))
TAV_BIND(IIRInitAlloc32sc_BiQuad_16sc, (&iir::init_alloc_converted<biquads, IIRState32sc_16sc>))
TAV_BIND(IIRGetStateSize32s_BiQuad_16s32f, (&iir::state_size<biquads, IIRState32s_16s>))
TAV_BIND(IIRInit32s_BiQuad_16s32f, (&iir::init<biquads, IIRState32s_16s>))
TAV_BIND(IIRInitAlloc32s_BiQuad_16s32f, (&iir::init_alloc<biquads, IIRState32s_16s>))
TAV_BIND(IIRGetStateSize32sc_BiQuad_16sc32fc, (&iir::state_size<biquads, IIRState32sc_16sc>))
TAV_BIND(IIRInit32sc_BiQuad_16sc32fc, (&iir::init<biquads, IIRState32sc_16sc>))
TAV_BIND(IIRInitAlloc32sc_BiQuad_16sc32fc, (&iir::init_alloc<biquads, IIRState32sc_16sc>))

TAV_BIND(IIRGetStateSize_BiQuad_DF1_32f, (&iir::state_size<biquads_df1, IIRState_32f>))
TAV_BIND(IIRInit_BiQuad_DF1_32f, (&iir::init<biquads_df1, IIRState_32f>))
TAV_BIND(IIRInitAlloc_BiQuad_DF1_32f, (&iir::init_alloc<biquads_df1, IIRState_32f>))
TAV_BIND(IIRGetStateSize64f_BiQuad_DF1_32s, (&iir::state_size<biquads_df1, IIRState64f_32s>))
TAV_BIND(IIRInit64f_BiQuad_DF1_32s, (&iir::init<biquads_df1, IIRState64f_32s>))
TAV_BIND(IIRInitAlloc64f_BiQuad_DF1_32s, (&iir::init_alloc<biquads_df1, IIRState64f_32s>))
TAV_BIND(IIRGetDlyLine64f_DF1_32s, &iir::get_delay_df1)
TAV_BIND(IIRSetDlyLine64f_DF1_32s, &iir::set_delay_df1)

}  // namespace tav::TAV_VARIANT
