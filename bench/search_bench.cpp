// How long Find takes for what is typed, letter by letter: 200 queries on the library
// as it is, and some of them on a library of 20,000 pages. Beside the mean stand
// the time that 95 of 100 answers need at most (`p95_ms`) and the longest (`max_ms`).
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "host/memory/memory_desktop.h"
#include "search/index.h"

namespace {

using quill::search::Index;
using quill::search::Library;

constexpr std::size_t kShown = 50;  // hits of an answer
constexpr std::size_t kPages = 20'000;
constexpr std::size_t kWordsOfAPage = 160;

// Made up, after what writers look for; some with slips of the pen, some with no answer.
constexpr const char* kQueries = R"(
inciting incident; logline; margins; what font; slug line; phone calls; text messages; voice over; O.S.;
flashback; flashbacks in a script; dream sequence; series of shots; title page; page length;
minutes per page; adapting a novel; adaptation rights; public domain; life rights; writer's block;
stuck in the middle; second act; midpoint; low point; climax; last ten pages; first ten pages; opening image;
cold open; act breaks; teaser; pilot; how long is a pilot; one hour; bible; series bible; show bible;
outline; treatment; synopsis; coverage; reader; notes; taking notes; second draft; cutting; too long;
merging characters; dialog; subtext; exposition; dialect; accents; swearing; long speeches; soliloquy;
silence; pause; beat; wryly; action lines; camera directions; transitions; cut to; fade in;
music in a script; lyrics; sound effects; superimpose; subtitles; two languages; intercut; split screen;
crowd scenes; car chase; love scene; comedy; farce; satire; horror; thriller; mystery; red herring; clues;
plot holes; deus ex machina; planting and payoff; theme; genre; premise; what if; idea; research; notebook;
routine; how to start; character arc; flaw; wound; stakes; obstacles; conflict; antagonist; villain; hero;
antihero; ally; minor characters; names; naming characters; introducing characters; children; animals;
ensemble; likeable; agent; how to find an agent; query letter; pitch; pitching; meeting; general meeting;
producer; who buys; options; how much does an option pay; purchase price; contract; deal memo; copyright;
protect script; registering; register my script; speculative; on speculation; speculative script; contests; written by;
ampersand; arbitration; minimum; pension; health plan; strike; joining; invoice; late pay; taxes; reversion;
turnaround; writing partner; splitting up; stage directions; cast list; entrances; offstage; chorus;
one act play; ten minute play; puppets; verse; radio play; rehearsal; director; dramaturg;
theatre submission; amateurs; previews; writers room; showrunner; story editor; bottle episode; b story;
runner; season finale; procedural; sitcom; games; podcast; moliere; molière; chekov; chekhov; ibsen; méliès;
lubitsch; keaton; eisenstein; lorca; kalidasa; zeami; "two people"; area:tv outline; area:stage silence;
area:bio comedy; area:wga options; dialouge; monolgue; protaganist;
)";

std::vector<std::string> Queries() {
  std::vector<std::string> queries;
  std::istringstream lines(kQueries);
  for (std::string query; std::getline(lines >> std::ws, query, ';');) queries.push_back(query);
  return queries;
}

// The content files of the build on a desktop in memory, so that no disk is measured.
struct Bundle {
  Bundle() {
    for (const auto& entry : std::filesystem::directory_iterator(QUILL_DATA)) {
      std::ostringstream bytes;
      bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
      desktop.files.AddFile("Quillmere.app/Contents/Data/" + entry.path().filename().string(), bytes.str());
    }
  }

  quill::host::MemoryDesktop desktop;
};

// Pages of words of the real library, each as frequent as there.
Library Generate(const Library& library) {
  std::vector<std::string> words;
  for (const auto& text : library.texts) {
    std::istringstream body(text.body);
    for (std::string word; body >> word;) words.push_back(word);
  }
  std::mt19937 random(1);
  const auto take = [&](std::size_t count) {
    std::string text;
    while (count-- > 0) text += words[random() % words.size()] + " ";
    return text;
  };
  Library generated{library.areas, {}, {}};
  for (std::size_t page = 0; page < kPages; ++page)
    generated.texts.push_back({.mode = static_cast<std::int32_t>(1 + page % 5),
                               .page = std::to_string(page),
                               .title = take(2),
                               .body = take(kWordsOfAPage)});
  return generated;
}

double TimeOf(const Index& index, const std::string& typed) {
  const auto begin = std::chrono::steady_clock::now();
  benchmark::DoNotOptimize(index.Find(typed, 1, kShown));
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

// Types every `step`th query. An iteration is a letter.
void Type(benchmark::State& state, const Index& index, std::size_t step) {
  const std::vector<std::string> queries = Queries();
  std::vector<double> times;
  std::size_t query = 0;
  std::size_t letters = 0;
  for (auto _ : state) {
    if (++letters > queries[query].size()) {
      query = (query + step) % queries.size();
      letters = 1;
    }
    times.push_back(TimeOf(index, queries[query].substr(0, letters)));
  }
  std::sort(times.begin(), times.end());
  state.counters["p95_ms"] = times[times.size() * 95 / 100];
  state.counters["max_ms"] = times.back();
}

std::int64_t Letters(std::size_t step) {
  std::int64_t letters = 0;
  const std::vector<std::string> queries = Queries();
  for (std::size_t i = 0; i < queries.size(); i += step)
    letters += static_cast<std::int64_t>(queries[i].size());
  return letters;
}

void FindAsOneTypes(benchmark::State& state) {
  const Bundle bundle;
  Type(state, *Index::OfBundle(), 1);
}
BENCHMARK(FindAsOneTypes)->Unit(benchmark::kMillisecond)->Iterations(Letters(1));

void FindIn20000Pages(benchmark::State& state) {
  const Bundle bundle;
  const Index index(Generate(quill::search::ReadLibrary()));
  Type(state, index, 10);
}
BENCHMARK(FindIn20000Pages)->Unit(benchmark::kMillisecond)->Iterations(Letters(10));

// Before the first hit: with the index beside the content, and without.
void OpenTheIndex(benchmark::State& state) {
  const Bundle bundle;
  for (auto _ : state) benchmark::DoNotOptimize(Index::OfBundle());
}
BENCHMARK(OpenTheIndex)->Unit(benchmark::kMillisecond);

void MakeTheIndex(benchmark::State& state) {
  const Bundle bundle;
  for (auto _ : state) benchmark::DoNotOptimize(Index(quill::search::ReadLibrary()));
}
BENCHMARK(MakeTheIndex)->Unit(benchmark::kMillisecond);

}  // namespace
