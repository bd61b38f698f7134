/* How loud is a recording, and how loud is its silence?   level in.wav
   Statistics: mean, standard deviation, norms, extrema, zero crossings; a sort for the quiet parts. */
#include <math.h>
#include <sndfile.h>
#include <stdio.h>
#include <stdlib.h>
#include <tavs.h>

enum { frames_a_second = 50, most_samples = 1 << 27 };

static double decibels(double ratio) { return ratio > 1e-6 ? 20 * log10(ratio) : -120; }

/* The first channel, or null and a message. */
static Tav32f* read_samples(const char* path, int* len, int* rate) {
  SF_INFO     info = {0};
  SNDFILE*    file = sf_open(path, SFM_READ, &info);
  Tav32f *    all, *samples;
  const char* trouble = NULL;
  int         i;
  if (file == NULL)
    trouble = sf_strerror(NULL);
  else if (info.frames < frames_a_second || info.samplerate < frames_a_second)
    trouble = "fewer than 50 samples, or so few a second";
  else if (info.frames > most_samples / info.channels)
    trouble = "too long";
  if (trouble != NULL) {
    fprintf(stderr, "level: %s: %s\n", path, trouble);
    sf_close(file);
    return NULL;
  }
  *len = (int)info.frames, *rate = info.samplerate;
  all     = tavsMalloc_32f(*len * info.channels);
  samples = tavsMalloc_32f(*len);
  if (all != NULL && samples != NULL && sf_readf_float(file, all, *len) == *len) {
    for (i = 0; i < *len; ++i) samples[i] = all[i * info.channels];
  } else {
    fprintf(stderr, "level: %s: not all of it can be read\n", path);
    tavsFree(samples);
    samples = NULL;
  }
  tavsFree(all);
  sf_close(file);
  return samples;
}

/* The level that a tenth of all frames do not reach. */
static double noise_floor(const Tav32f* samples, int len, int rate) {
  const int frame = rate / frames_a_second, count = len / frame;
  Tav32f*   levels = tavsMalloc_32f(count);
  double    low;
  int       i;
  if (levels == NULL) return 0;
  for (i = 0; i < count; ++i) tavsNorm_L2_32f(samples + i * frame, frame, levels + i);
  tavsSortAscend_32f_I(levels, count);
  low = levels[count / 10] / sqrt(frame);
  tavsFree(levels);
  return low;
}

int main(int argc, char** argv) {
  Tav32f *samples, mean, deviation, lowest, highest, energy, crossings;
  int     len, rate, lowest_at, highest_at;

  if (argc != 2) {
    fprintf(stderr, "usage: level in.wav\n");
    return 2;
  }
  samples = read_samples(argv[1], &len, &rate);
  if (samples == NULL) return 1;
  if (tavsMeanStdDev_32f(samples, len, &mean, &deviation, 0) < 0 || tavsNorm_L2_32f(samples, len, &energy) < 0
      || tavsMinMaxIndx_32f(samples, len, &lowest, &lowest_at, &highest, &highest_at) < 0
      || tavsZeroCrossing_32f(samples, len, &crossings, 1) < 0)
    return 1;

  printf("level: %.2f s at %d Hz\n", (double)len / rate, rate);
  printf("  level          %7.1f dB of full scale\n", decibels(energy / sqrt(len)));
  printf("  highest peak   %7.1f dB at %.3f s\n", decibels(highest), (double)highest_at / rate);
  printf("  lowest peak    %7.1f dB at %.3f s\n", decibels(-lowest), (double)lowest_at / rate);
  printf("  noise floor    %7.1f dB\n", decibels(noise_floor(samples, len, rate)));
  printf("  offset         %7.4f, deviation %.4f\n", mean, deviation);
  printf("  zero crossings %7.0f a second\n", crossings * rate / len);
  tavsFree(samples);
  return 0;
}
