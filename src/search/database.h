// SQLite as this folder needs it: a database in memory, statements on it, and its
// bytes. No path is ever handed to it. What goes wrong is a `DatabaseError`.
#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace quill::search {

class DatabaseError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A statement under way. Parameters count from 1, columns from 0. Its database must
// outlive it.
class Statement {
 public:
  Statement(sqlite3* database, const char* sql);

  Statement& Bind(int parameter, std::string_view text);
  Statement& Bind(int parameter, std::int64_t number);

  // Goes on to the next row; false if there is none.
  bool Step();

  // Carries out a statement without rows, after which it can be bound anew.
  void Run();

  std::int64_t Number(int column) const;
  double Real(int column) const;
  std::string Text(int column) const;

 private:
  struct Finalise {
    void operator()(sqlite3_stmt* statement) const;
  };

  void Check(int result) const;

  std::unique_ptr<sqlite3_stmt, Finalise> statement_;
};

class Database {
 public:
  // An empty one.
  Database();

  // What was written by `Bytes`; it can't be changed.
  explicit Database(std::string bytes);

  // Carries out statements without parameters.
  void Run(const char* sql);

  Statement Prepare(const char* sql) const { return {connection_.get(), sql}; }

  std::string Bytes() const;

  // For `sqlite3`'s own functions.
  sqlite3* Connection() const { return connection_.get(); }

 private:
  struct Close {
    void operator()(sqlite3* connection) const;
  };

  std::string bytes_;  // on which the connection works
  std::unique_ptr<sqlite3, Close> connection_;
};

}  // namespace quill::search
