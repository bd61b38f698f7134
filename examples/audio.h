// Sound files, and a meter that calls tavSP, checks each status and tells the speed.
#pragma once

#include <tavs.h>

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <string>
#include <vector>

struct Sound {
  std::vector<float> samples;  // one channel, full scale is -1 to 1
  int                rate;     // samples per second

  int    size() const { return static_cast<int>(samples.size()); }
  double seconds() const { return static_cast<double>(samples.size()) / rate; }
};

// Reads any format that libsndfile knows; several channels are averaged.
Sound read_sound(const std::string& path);

// Writes a WAV file of 16-bit samples.
void write_sound(const std::string& path, const Sound& sound);

class Meter {
 public:
  // Calls function(arguments...) and throws if its status is an error.
  template <class... Parameters, class... Arguments>
  void call(const char* name, TavStatus (*function)(Parameters...), Arguments... arguments) {
    const auto      start  = std::chrono::steady_clock::now();
    const TavStatus status = function(arguments...);
    const auto      end    = std::chrono::steady_clock::now();
    if (status < 0) throw std::runtime_error(std::string(name) + " returned the status " + std::to_string(status));
    add(name, std::chrono::duration<double>(end - start).count());
  }

  // A line for each function: its calls, their time, and how many times longer the sound lasts.
  void print(double sound_seconds) const;

 private:
  struct Entry {
    std::string name;
    int         calls;
    double      seconds;
  };

  void add(const std::string& name, double seconds);

  std::vector<Entry> entries_;
};

// What main does: calls run() with the arguments, as many as `usage` has words. Tells what is wrong, if something is.
int example(const char* name, const char* usage, int argc, char** argv, void (*run)(char** names));
