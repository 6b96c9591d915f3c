#include "search/database.h"

#include <sqlite3.h>

#include <utility>

namespace quill::search {
namespace {

sqlite3* Open() {
  sqlite3* connection = nullptr;
  const int result =
      sqlite3_open_v2(":memory:", &connection, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  if (result == SQLITE_OK) return connection;
  sqlite3_close(connection);
  throw DatabaseError(sqlite3_errstr(result));
}

struct FreeBytes {
  void operator()(unsigned char* bytes) const { sqlite3_free(bytes); }
};

}  // namespace

Statement::Statement(sqlite3* database, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  const int result = sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
  if (result != SQLITE_OK) throw DatabaseError(sqlite3_errmsg(database));
  statement_.reset(statement);
}

void Statement::Finalise::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

void Statement::Check(int result) const {
  if (result != SQLITE_OK) throw DatabaseError(sqlite3_errmsg(sqlite3_db_handle(statement_.get())));
}

Statement& Statement::Bind(int parameter, std::string_view text) {
  Check(sqlite3_bind_text64(statement_.get(), parameter, text.data(), text.size(), SQLITE_TRANSIENT,
                            SQLITE_UTF8));
  return *this;
}

Statement& Statement::Bind(int parameter, std::int64_t number) {
  Check(sqlite3_bind_int64(statement_.get(), parameter, number));
  return *this;
}

bool Statement::Step() {
  const int result = sqlite3_step(statement_.get());
  if (result == SQLITE_ROW) return true;
  if (result != SQLITE_DONE) Check(result);
  return false;
}

void Statement::Run() {
  Step();
  Check(sqlite3_reset(statement_.get()));
}

std::int64_t Statement::Number(int column) const { return sqlite3_column_int64(statement_.get(), column); }

double Statement::Real(int column) const { return sqlite3_column_double(statement_.get(), column); }

std::string Statement::Text(int column) const {
  const auto* const text = sqlite3_column_text(statement_.get(), column);
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column));
  return text == nullptr ? std::string() : std::string(reinterpret_cast<const char*>(text), size);
}

Database::Database() : connection_(Open()) {}

Database::Database(std::string bytes) : bytes_(std::move(bytes)), connection_(Open()) {
  const auto size = static_cast<sqlite3_int64>(bytes_.size());
  const int result =
      sqlite3_deserialize(connection_.get(), "main", reinterpret_cast<unsigned char*>(bytes_.data()), size,
                          size, SQLITE_DESERIALIZE_READONLY);
  if (result != SQLITE_OK) throw DatabaseError(sqlite3_errstr(result));
}

void Database::Close::operator()(sqlite3* connection) const { sqlite3_close(connection); }

void Database::Run(const char* sql) {
  if (sqlite3_exec(connection_.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK)
    throw DatabaseError(sqlite3_errmsg(connection_.get()));
}

std::string Database::Bytes() const {
  sqlite3_int64 size = 0;
  const std::unique_ptr<unsigned char, FreeBytes> bytes(
      sqlite3_serialize(connection_.get(), "main", &size, 0));
  if (!bytes) throw DatabaseError(sqlite3_errstr(SQLITE_NOMEM));
  return {reinterpret_cast<const char*>(bytes.get()), static_cast<std::size_t>(size)};
}

}  // namespace quill::search
