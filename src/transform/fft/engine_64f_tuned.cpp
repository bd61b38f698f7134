// The complex transform in doubles.
#include "transform/fft/engine_body.h"

namespace tav::TAV_VARIANT::fft {

TAV_FFT_ENGINE(, Tav64f)

}  // namespace tav::TAV_VARIANT::fft
