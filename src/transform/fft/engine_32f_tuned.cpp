// The complex transform in singles.
#include "transform/fft/engine_body.h"

namespace tav::TAV_VARIANT::fft {

TAV_FFT_ENGINE(, Tav32f)

}  // namespace tav::TAV_VARIANT::fft
