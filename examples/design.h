// What the examples need and the library does not give: windows, filter designs, decibels.
#pragma once

#include <vector>

// A Hann window of n points, periodic: windows half of it apart add up to 1.
std::vector<float> hann(int n);

// A linear-phase filter that passes low to high (Hz): an ideal band-pass cut off by a Blackman window. `count` is odd.
std::vector<float> band_pass_taps(double low, double high, double rate, int count);

// The same band by biquads, b0 b1 b2 a0 a1 a2 each: a Butterworth high-pass of 4th order, then a low-pass of 8th.
std::vector<float>   band_pass_sections(double low, double high, double rate);
inline constexpr int band_pass_section_count = 6;

// 20 log10 of a ratio of amplitudes, at least -120.
double decibels(double ratio);
