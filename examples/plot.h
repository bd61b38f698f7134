// Plots of sound.
#pragma once

#include <string>
#include <vector>

#include "audio.h"

struct Wave {
  std::string  title;
  const Sound& sound;
};

// Writes a PNG with one panel for each wave, one below the other on the same scales: seconds, and full scale -1 to 1.
// Each pixel column shows the range of its samples, and within it their root mean square.
void plot_waves(const std::string& path, const std::vector<Wave>& waves);
