// Draws rows and the arguments of their calls, and calls them.
//
//   fuzz COUNT [SEED [PATH...]]  the cases of the paths, then so many drawn at random, the rows in turn; by then every
//                                export must have been done, and refused
//   fuzz --memcheck COUNT [SEED] so many cases for valgrind, every other one of a row that has records
//   fuzz PATH...                 the cases in files, or in all files of folders
//   fuzz --pack FOLDER           the cases in the files of a folder as a text, in order
//   fuzz --unpack TEXT FOLDER    the reverse, a file for each
//
// Built with libFuzzer, whose own options follow `fuzz` as well, it also looks for new cases.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>

#include "fuzz/cases.h"
#include "fuzz/watch.h"

namespace fuzz {
namespace {

namespace fs = std::filesystem;

std::string content(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) fail(file.c_str(), "cannot be read");
  return {std::istreambuf_iterator<char>(in), {}};
}
bytes bytes_of(const std::string& text) { return {text.begin(), text.end()}; }

void replay(const uint8_t* data, size_t size) {
  if (!is_text(data, size)) return run_case(data, size);
  for (const bytes& one : cases_in_text({data, data + size})) run_case(one.data(), one.size());
}

template <class F> void for_each_file(const fs::path& path, const F& f) {
  if (!fs::is_directory(path)) return f(bytes_of(content(path)));
  for (const auto& entry : fs::directory_iterator(path)) f(bytes_of(content(entry.path())));
}

int replay_paths(char** paths) {
  for (; *paths != nullptr; ++paths) for_each_file(*paths, [](const bytes& b) { replay(b.data(), b.size()); });
  return 0;
}

int pack(const char* folder) {
  std::set<std::string> lines;
  for_each_file(folder, [&](const bytes& b) { lines.insert(line_of(b)); });
  printf("%s: a row, and the bytes that decide its calls.\n", text_mark);
  for (const std::string& line : lines) puts(line.c_str());
  return 0;
}

int unpack(const char* text, const char* folder) {
  fs::create_directories(folder);
  int number = 0;
  for (const bytes& one : cases_in_text(content(text)))
    std::ofstream(fs::path(folder) / std::to_string(number++), std::ios::binary)
        .write(reinterpret_cast<const char*>(one.data()), std::streamsize(one.size()));
  return 0;
}

void run_drawn(const row& r, std::mt19937& bits) {
  bytes rest(8);
  for (uint8_t& b : rest) b = uint8_t(bits());
  const bytes one = case_of(r, rest);
  run_case(one.data(), one.size());
}

// Rows of records are those that belong to no single export.
int draw_for_memcheck(long cases, unsigned seed) {
  std::vector<const row*> with_records;
  for (const row& r : rows())
    if (r.function == nullptr) with_records.push_back(&r);
  unset_records = true;
  std::mt19937 bits(seed);
  for (long i = 0; i < cases; ++i)
    run_drawn(i % 2 ? *with_records[bits() % with_records.size()] : rows()[bits() % rows().size()], bits);
  printf("%ld cases\n", cases);
  return 0;
}

// Rows that are left with gaps in the end are tried a while longer.
int draw(long cases, unsigned seed) {
  std::mt19937 bits(seed);
  long         done = 0;
  for (; done < cases || (done < 10 * cases && count_gaps(false) != 0); ++done)
    run_drawn(rows()[size_t(done) % rows().size()], bits);
  const int gaps = count_gaps(true);
  printf("%ld cases of %zu rows, %td functions, %d gaps\n", done, rows().size(), notes_end() - notes_begin(), gaps);
  return gaps != 0;
}

[[maybe_unused]] int run(int argc, char** argv) {
  const std::string word = argc > 1 ? argv[1] : "100000";
  if (word == "--pack" && argc == 3) return pack(argv[2]);
  if (word == "--unpack" && argc == 4) return unpack(argv[2], argv[3]);
  if (word == "--memcheck" && argc > 2) return draw_for_memcheck(atol(argv[2]), argc > 3 ? unsigned(atol(argv[3])) : 1);
  if (!isdigit(word[0])) return replay_paths(argv + 1);
  if (argc > 3) replay_paths(argv + 3);
  return draw(atol(word.c_str()), argc > 2 ? unsigned(atol(argv[2])) : 1);
}

}  // namespace
}  // namespace fuzz

#ifdef TAV_LIBFUZZER
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  const std::string word = *argc > 1 ? (*argv)[1] : "";
  if (isdigit(word[0]) || word.rfind("--", 0) == 0) exit(fuzz::run(*argc, *argv));
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::replay(data, size);
  return 0;
}

extern "C" size_t LLVMFuzzerMutate(uint8_t* data, size_t size, size_t most);

// Another row now and then; otherwise another decision in the same one.
extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t most, unsigned seed) {
  const size_t     head = sizeof(uint32_t);
  const fuzz::row& any  = fuzz::rows()[seed % fuzz::rows().size()];
  if (most <= head) return 0;
  if (size <= head || seed % 16 == 0) memcpy(data, fuzz::case_of(any, {}).data(), head);
  return head + LLVMFuzzerMutate(data + head, size <= head ? 0 : size - head, most - head);
}
#else
int main(int argc, char** argv) { return fuzz::run(argc, argv); }
#endif
