// The short complex transforms in singles.
#include "transform/fft/direct.h"

namespace tav::TAV_VARIANT::fft {

TAV_FFT_SHORT(, Tav32f)

}  // namespace tav::TAV_VARIANT::fft
