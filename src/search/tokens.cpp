#include "search/tokens.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <memory>
#include <span>

#include "search/database.h"

namespace quill::search {
namespace {

// A tokenizer takes the length as an int.
constexpr std::size_t kMostBytes = 1U << 30U;

// What SQLite gives its extensions for full-text search; null if it has none.
fts5_api* FullTextSearch(const Database& database) {
  fts5_api* api = nullptr;
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database.Connection(), "SELECT fts5(?1)", -1, &statement, nullptr) == SQLITE_OK) {
    sqlite3_bind_pointer(statement, 1, static_cast<void*>(&api), "fts5_api_ptr", nullptr);
    sqlite3_step(statement);
  }
  sqlite3_finalize(statement);
  return api;
}

// One of SQLite's tokenizers. It gives each token to `Taker`, a function of the token's
// text and of the bytes in the text that it stands for.
class SqliteTokenizer {
 public:
  SqliteTokenizer(fts5_api* api, const char* name, std::span<const char*> arguments) {
    void* context = nullptr;
    if (api == nullptr || api->xFindTokenizer(api, name, &context, &functions_) != SQLITE_OK) return;
    functions_.xCreate(context, arguments.data(), static_cast<int>(arguments.size()), &tokenizer_);
  }
  ~SqliteTokenizer() {
    if (tokenizer_ != nullptr) functions_.xDelete(tokenizer_);
  }
  SqliteTokenizer(const SqliteTokenizer&) = delete;
  SqliteTokenizer& operator=(const SqliteTokenizer&) = delete;

  template <typename Taker>
  void Run(std::string_view text, Taker taker) const {
    if (tokenizer_ == nullptr) return;
    const auto take = [](void* to, int, const char* token, int size, int begin, int end) {
      (*static_cast<Taker*>(to))(std::string_view(token, static_cast<std::size_t>(size)),
                                 static_cast<std::size_t>(begin), static_cast<std::size_t>(end));
      return SQLITE_OK;
    };
    functions_.xTokenize(tokenizer_, static_cast<void*>(&taker), FTS5_TOKENIZE_DOCUMENT, text.data(),
                         static_cast<int>(std::min(text.size(), kMostBytes)), take);
  }

 private:
  fts5_tokenizer functions_ = {};
  Fts5Tokenizer* tokenizer_ = nullptr;
};

// Both belong to a connection of their own, so that text can be taken apart without an
// index.
struct Tokenizers {
  std::array<const char*, 2> for_words = {"remove_diacritics", "2"};
  std::array<const char*, 3> for_stems = {"unicode61", "remove_diacritics", "2"};
  Database database;
  SqliteTokenizer words{FullTextSearch(database), "unicode61", for_words};
  SqliteTokenizer stems{FullTextSearch(database), "porter", for_stems};
};

}  // namespace

// The stemmer stems what the other finds, so that both give the same tokens.
std::vector<Token> Tokens(std::string_view text) {
  static const Tokenizers tokenizers;
  std::vector<Token> tokens;
  tokenizers.words.Run(text, [&](std::string_view word, std::size_t begin, std::size_t end) {
    tokens.push_back({std::string(word), {}, begin, end});
  });
  std::size_t next = 0;
  tokenizers.stems.Run(text, [&](std::string_view stem, std::size_t, std::size_t) {
    if (next < tokens.size()) tokens[next++].stem = stem;
  });
  return tokens;
}

}  // namespace quill::search
