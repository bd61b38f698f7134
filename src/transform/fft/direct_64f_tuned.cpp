// The short complex transforms in doubles.
#include "transform/fft/direct.h"

namespace tav::TAV_VARIANT::fft {

TAV_FFT_SHORT(, Tav64f)

}  // namespace tav::TAV_VARIANT::fft
