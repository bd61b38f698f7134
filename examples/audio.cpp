#include "audio.h"

#include <sndfile.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>

namespace {

constexpr sf_count_t most_frames = 1 << 26;  // 23 minutes at 48 kHz; the spectra of more do not fit into 32 bits

using File = std::unique_ptr<SNDFILE, int (*)(SNDFILE*)>;

File open_file(const std::string& path, int mode, SF_INFO& info) {
  File file(sf_open(path.c_str(), mode, &info), sf_close);
  if (!file) throw std::runtime_error(path + ": " + sf_strerror(nullptr));
  return file;
}

}  // namespace

Sound read_sound(const std::string& path) {
  SF_INFO    info{};
  const File file = open_file(path, SFM_READ, info);
  if (info.frames < 1) throw std::runtime_error(path + ": no samples in it");
  if (info.samplerate < 1000) throw std::runtime_error(path + ": a sampling rate below 1000 Hz");
  if (info.frames > most_frames)
    throw std::runtime_error(path + ": longer than " + std::to_string(most_frames / info.samplerate / 60) + " minutes");

  std::vector<float> frames(static_cast<size_t>(info.frames) * info.channels);
  if (sf_readf_float(file.get(), frames.data(), info.frames) != info.frames)
    throw std::runtime_error(path + ": " + sf_strerror(file.get()));

  Sound sound{std::vector<float>(info.frames), info.samplerate};
  for (int i = 0; i < sound.size(); ++i) {
    float sum = 0;
    for (int channel = 0; channel < info.channels; ++channel) sum += frames[i * info.channels + channel];
    sound.samples[i] = sum / info.channels;
  }
  return sound;
}

void write_sound(const std::string& path, const Sound& sound) {
  SF_INFO info{};
  info.samplerate = sound.rate;
  info.channels   = 1;
  info.format     = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  const File file = open_file(path, SFM_WRITE, info);
  if (sf_writef_float(file.get(), sound.samples.data(), sound.size()) != sound.size())
    throw std::runtime_error(path + ": " + sf_strerror(file.get()));
}

void Meter::add(const std::string& name, double seconds) {
  auto entry = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) { return e.name == name; });
  if (entry == entries_.end()) entry = entries_.insert(entry, {name, 0, 0});
  entry->calls += 1;
  entry->seconds += seconds;
}

void Meter::print(double sound_seconds) const {
  std::printf("  %-30s %7s %11s %14s\n", "function", "calls", "time", "x real time");
  for (const Entry& entry : entries_)
    std::printf("  %-30s %7d %8.3f ms %14.0f\n", entry.name.c_str(), entry.calls, 1e3 * entry.seconds,
                sound_seconds / entry.seconds);
}

int example(const char* name, const char* usage, int argc, char** argv, void (*run)(char** names)) {
  if (argc != 2 + std::count(usage, usage + std::strlen(usage), ' ')) {
    std::fprintf(stderr, "usage: %s %s\n", name, usage);
    return 2;
  }
  try {
    run(argv + 1);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", name, error.what());
    return 1;
  }
  return 0;
}
