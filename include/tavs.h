/**
 * @file tavs.h
 * tavSP: signal-processing primitives, one array operation per call.
 *
 * Include this header and link libtavs. It is plain C99 and serves C++ as it stands. The functions are declared
 * in the headers below, one for each group of families; each of them may also be included alone.
 *
 * Rules that hold for every function unless its own text says otherwise:
 * - Lengths count elements, not bytes; a complex pair counts once.
 * - Pointers may have any alignment. Arrays on a 16-byte boundary, such as those of tavsMalloc_*(), run fastest.
 * - A source and a destination are separate arrays, or the same array in the forms whose name ends in I or ISfs.
 * - Arguments are checked in the order pointers, lengths, other values, and the first fault is the status. A call
 *   that returns an error (a negative status) has written nothing.
 * - Every function may be called from any number of threads at once on different data.
 */
#ifndef TAVS_H
#define TAVS_H

#include "tavs/arithmetic.h"
#include "tavs/companding.h"
#include "tavs/complex.h"
#include "tavs/contexts.h"
#include "tavs/convert.h"
#include "tavs/counting.h"
#include "tavs/division.h"
#include "tavs/dot_product.h"
#include "tavs/extrema.h"
#include "tavs/fft.h"
#include "tavs/fft_flags.h"
#include "tavs/fft_integer.h"
#include "tavs/fft_real.h"
#include "tavs/fft_real_integer.h"
#include "tavs/fir.h"
#include "tavs/fir_direct.h"
#include "tavs/fir_integer.h"
#include "tavs/formats.h"
#include "tavs/iir.h"
#include "tavs/iir_biquad.h"
#include "tavs/iir_direct.h"
#include "tavs/logic.h"
#include "tavs/memory.h"
#include "tavs/min_max_every.h"
#include "tavs/move.h"
#include "tavs/normalize.h"
#include "tavs/norms.h"
#include "tavs/phase.h"
#include "tavs/polar.h"
#include "tavs/radix_sort.h"
#include "tavs/scaled.h"
#include "tavs/sort.h"
#include "tavs/spectra.h"
#include "tavs/status.h"
#include "tavs/sums.h"
#include "tavs/threshold.h"
#include "tavs/types.h"

#endif
