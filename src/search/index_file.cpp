#include "search/index_file.h"

#include <cstdint>
#include <utility>

#include "base/hash.h"

namespace quill::search {
namespace {

constexpr std::size_t kSealBytes = 8;

// The version is that of the tables and of what is put into them: whoever changes either
// gives it the next number. The page size is small, since most tables are.
constexpr const char* kMakeTables =
    "PRAGMA page_size = 1024;"
    "PRAGMA application_id = 0x51696478;"
    "PRAGMA user_version = 1;"
    "CREATE VIRTUAL TABLE pages USING fts5(title, body, content='', prefix='1',"
    "  tokenize='porter unicode61 remove_diacritics 2');"
    "CREATE TABLE words(word TEXT PRIMARY KEY, count INT) WITHOUT ROWID;"
    "CREATE TABLE sources(name TEXT, hash INT);"
    "BEGIN";

constexpr const char* kFinish =
    "INSERT INTO pages(pages) VALUES('optimize');"
    "COMMIT;"
    "VACUUM";

constexpr std::int64_t kApplication = 0x51696478;
constexpr std::int64_t kVersion = 1;

// SQLite's numbers have a sign.
std::int64_t Signed(std::uint64_t hash) { return static_cast<std::int64_t>(hash); }

std::string SealOf(std::string_view bytes) {
  std::uint64_t hash = base::Hash64(bytes);
  std::string seal;
  for (std::size_t i = 0; i < kSealBytes; ++i, hash >>= 8U) seal += static_cast<char>(hash & 0xFFU);
  return seal;
}

std::int64_t NumberFrom(const Database& database, const char* sql) {
  Statement statement = database.Prepare(sql);
  return statement.Step() ? statement.Number(0) : 0;
}

std::vector<Source> ReadSources(const Database& database) {
  std::vector<Source> sources;
  Statement statement = database.Prepare("SELECT name, hash FROM sources ORDER BY rowid");
  while (statement.Step())
    sources.push_back({statement.Text(0), static_cast<std::uint64_t>(statement.Number(1))});
  return sources;
}

void AddTexts(Database& database, const Library& library) {
  Statement insert = database.Prepare("INSERT INTO pages(rowid, title, body) VALUES(?1, ?2, ?3)");
  std::int64_t row = 0;
  for (const Text& text : library.texts) insert.Bind(1, ++row).Bind(2, text.title).Bind(3, text.body).Run();
}

void AddWords(Database& database, const Library& library) {
  Statement insert = database.Prepare("INSERT INTO words VALUES(?1, ?2)");
  for (const Word& word : WordsOf(library)) insert.Bind(1, word.word).Bind(2, word.count).Run();
}

void AddSources(Database& database, const Library& library) {
  Statement insert = database.Prepare("INSERT INTO sources VALUES(?1, ?2)");
  for (const Source& source : library.sources) insert.Bind(1, source.name).Bind(2, Signed(source.hash)).Run();
}

bool IsIndexOf(const Database& database, const Library& library) {
  return NumberFrom(database, "PRAGMA application_id") == kApplication &&
         NumberFrom(database, "PRAGMA user_version") == kVersion && ReadSources(database) == library.sources;
}

}  // namespace

std::unique_ptr<Database> MakeDatabase(const Library& library) {
  auto database = std::make_unique<Database>();
  database->Run(kMakeTables);
  AddTexts(*database, library);
  AddWords(*database, library);
  AddSources(*database, library);
  database->Run(kFinish);
  return database;
}

std::unique_ptr<Database> OpenDatabase(std::string_view file, const Library& library) {
  if (file.size() <= kSealBytes) return nullptr;
  const std::string_view bytes = file.substr(0, file.size() - kSealBytes);
  if (file.substr(bytes.size()) != SealOf(bytes)) return nullptr;
  try {
    auto database = std::make_unique<Database>(std::string(bytes));
    return IsIndexOf(*database, library) ? std::move(database) : nullptr;
  } catch (const DatabaseError&) {
    return nullptr;
  }
}

// The stemmer is asked for all at once. The words are its own, so that it finds the same.
std::vector<Word> ReadWords(const Database& database) {
  std::vector<Word> words;
  std::string all;
  Statement statement = database.Prepare("SELECT word, count FROM words ORDER BY word");
  while (statement.Step()) {
    words.push_back({statement.Text(0), {}, statement.Number(1)});
    all += words.back().word + ' ';
  }
  std::vector<Token> tokens = Tokens(all);
  if (tokens.size() != words.size()) throw DatabaseError("the table of words holds something else");
  for (std::size_t i = 0; i < words.size(); ++i) words[i].stem = std::move(tokens[i].stem);
  return words;
}

std::string FileOf(const Database& database) {
  const std::string bytes = database.Bytes();
  return bytes + SealOf(bytes);
}

}  // namespace quill::search
