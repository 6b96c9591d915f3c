// `quillpress search`: what a reader would find, for authors: where it stands in the
// content files or in the manuscripts.
#include <CLI/CLI.hpp>
#include <cstddef>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/mode_table.h"
#include "authoring/json.h"
#include "quillpress/commands.h"
#include "quillpress/data_view.h"
#include "quillpress/manuscript_lines.h"
#include "quillpress/workplace.h"
#include "search/index.h"

namespace quill::quillpress {
namespace {

using authoring::JsonString;
using authoring::Member;

struct SearchArguments {
  std::string data;
  std::vector<std::string> words;
  std::string area;
  std::string format = "text";
  std::size_t limit = 20;
  std::string manuscripts;
};

// A hit and where an author finds it.
struct PlacedHit {
  const search::Hit& hit;
  std::string file;
  ManuscriptLine manuscript;
};

std::vector<std::string> AreaNames() {
  std::vector<std::string> names;
  for (const app::Mode& mode : app::kModes)
    if (!mode.opening) names.emplace_back(mode.area);
  return names;
}

// What a reader would type for it. Each argument stands for itself, so that words that
// the shell keeps together stand together.
std::string Typed(const SearchArguments& arguments) {
  std::string typed = arguments.area.empty() ? "" : "area:" + arguments.area;
  for (const std::string& word : arguments.words) typed += (typed.empty() ? "" : " ") + word;
  return typed;
}

std::vector<PlacedHit> Place(const search::Answer& answer, const SearchArguments& arguments) {
  const search::Query query = search::ParseQuery(Typed(arguments));
  ManuscriptLines manuscripts(arguments.manuscripts);
  std::vector<PlacedHit> placed;
  for (const search::Hit& hit : answer.hits) {
    const app::Mode& mode = app::kModes.at(static_cast<std::size_t>(hit.mode));
    const auto file = hit.kind == search::Kind::kPage ? mode.content_file : mode.glossary_file;
    placed.push_back({hit, std::string(file), {}});
    if (!arguments.manuscripts.empty()) placed.back().manuscript = manuscripts.LineOf(hit, query);
  }
  return placed;
}

// As compilers give places, so that editors find them.
void PrintText(const search::Answer& answer, const std::vector<PlacedHit>& hits) {
  for (const PlacedHit& placed : hits) {
    const ManuscriptLine& line = placed.manuscript;
    std::cout << (line.line > 0 ? line.file + ":" + std::to_string(line.line)
                                : placed.file + ": page " + placed.hit.page)
              << ": \"" << placed.hit.title << "\": " << placed.hit.excerpt.line << "\n";
  }
  std::cout << hits.size() << " of " << answer.total << (answer.total == 1 ? " hit\n" : " hits\n");
  if (answer.nearest.empty()) return;
  std::cout << "\"" << answer.unknown << "\" stands nowhere; the nearest words:";
  for (const std::string& word : answer.nearest) std::cout << " " << word;
  std::cout << "\n";
}

std::string JsonOf(const PlacedHit& placed) {
  const search::Hit& hit = placed.hit;
  std::string marked;
  for (const search::Range& range : hit.excerpt.marked)
    marked +=
        (marked.empty() ? "[" : ", [") + std::to_string(range.begin) + ", " + std::to_string(range.end) + "]";
  std::string json =
      "{" + Member("area", JsonString(app::kModes.at(static_cast<std::size_t>(hit.mode)).area)) + ", " +
      Member("kind", JsonString(hit.kind == search::Kind::kPage ? "page" : "entry")) + ", " +
      Member("file", JsonString(placed.file)) + ", " + Member("page", hit.page) + ", " +
      Member("title", JsonString(hit.title)) + ", " + Member("text", JsonString(hit.excerpt.line)) + ", " +
      Member("marked", "[" + marked + "]");
  if (placed.manuscript.line > 0)
    json += ", " + Member("manuscript", JsonString(placed.manuscript.file)) + ", " +
            Member("line", placed.manuscript.line);
  return json + "}";
}

// A hit a line, like the items of the check's report.
void PrintJson(const search::Answer& answer, const std::vector<PlacedHit>& hits) {
  std::string nearest;
  for (const std::string& word : answer.nearest) nearest += (nearest.empty() ? "" : ", ") + JsonString(word);
  std::cout << "{\n  " << Member("total", std::to_string(answer.total)) << ",\n  "
            << Member("nearest", "[" + nearest + "]") << ",\n  \"hits\": [";
  const char* separator = "\n    ";
  for (const PlacedHit& hit : hits) {
    std::cout << separator << JsonOf(hit);
    separator = ",\n    ";
  }
  std::cout << (hits.empty() ? "]\n}\n" : "\n  ]\n}\n");
}

ExitStatus RunSearch(const SearchArguments& arguments) {
  RequireFolder(arguments.data);
  if (!arguments.manuscripts.empty()) RequireFolder(arguments.manuscripts);
  const Workplace workplace(BundleView(arguments.data));
  RequireContent();
  const search::Answer answer =
      search::Index::OfBundle()->Find(Typed(arguments), std::nullopt, arguments.limit);
  (arguments.format == "json" ? PrintJson : PrintText)(answer, Place(answer, arguments));
  return answer.total > 0 ? kDone : kRefused;
}

}  // namespace

void AddSearchCommand(CLI::App& app, Action& action) {
  auto* const command = app.add_subcommand("search", "Finds pages and glossary entries by their words");
  const auto arguments = std::make_shared<SearchArguments>();
  command->add_option("DATA", arguments->data, "the folder of the content files")->required();
  command->add_option("WORDS", arguments->words, "the words, as a reader types them")->required();
  command->add_option("--area", arguments->area, "the one area to look in")
      ->check(CLI::IsMember(AreaNames(), CLI::ignore_case));
  command->add_option("--format", arguments->format, "text: a line for each hit; json: one object")
      ->check(CLI::IsMember({"text", "json"}))
      ->capture_default_str();
  command->add_option("--limit", arguments->limit, "so many hits at most")
      ->type_name("N")
      ->capture_default_str();
  command
      ->add_option("--manuscripts", arguments->manuscripts,
                   "the folder of the manuscripts; hits then name their lines")
      ->type_name("DIR");
  command->footer(
      "All words must occur, the last one as a beginning; '\"two words\"' stand together.\n"
      "If nothing is found the exit status is 1.\n"
      "Example: quillpress search Data inciting incident --area screen");
  command->callback([arguments, &action] { action = [arguments] { return RunSearch(*arguments); }; });
}

}  // namespace quill::quillpress
