// The statuses of the Direct FIR calls.
#include "filter/fir_direct_faults.h"

#define CASE(form, plain, self, exponent)                                  \
  TAV_FAULTS(FIR##form##plain, test::fir_direct<0, 2, true, exponent>)     \
  TAV_FAULTS(FIR##form##self, test::fir_direct<0, 1, true, exponent>)      \
  TAV_FAULTS(FIROne##form##plain, test::fir_direct<1, 2, false, exponent>) \
  TAV_FAULTS(FIROne##form##self, test::fir_direct<0, 1, false, exponent>)
CASE(_Direct_32f, , _I, false)
CASE(_Direct_32fc, , _I, false)
CASE(_Direct_64f, , _I, false)
CASE(_Direct_64fc, , _I, false)
CASE(64f_Direct_32f, , _I, false)
CASE(64fc_Direct_32fc, , _I, false)
CASE(32f_Direct_16s, _Sfs, _ISfs, false)
CASE(32fc_Direct_16sc, _Sfs, _ISfs, false)
CASE(64f_Direct_16s, _Sfs, _ISfs, false)
CASE(64fc_Direct_16sc, _Sfs, _ISfs, false)
CASE(64f_Direct_32s, _Sfs, _ISfs, false)
CASE(64fc_Direct_32sc, _Sfs, _ISfs, false)
CASE(32s_Direct_16s, _Sfs, _ISfs, true)
CASE(32sc_Direct_16sc, _Sfs, _ISfs, true)
#undef CASE

TAV_FAULTS(FIR_Direct_16s_Sfs, test::fir_direct<0, 2, true, false, true>)
TAV_FAULTS(FIR_Direct_16s_ISfs, test::fir_direct<0, 1, true, false, true>)
TAV_FAULTS(FIROne_Direct_16s_Sfs, test::fir_direct<1, 2, false, false, true>)
TAV_FAULTS(FIROne_Direct_16s_ISfs, test::fir_direct<0, 1, false, false, true>)
