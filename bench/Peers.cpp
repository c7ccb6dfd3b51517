// The same values, asked for in the same order, in other stores.
#include "Reader.h"

#include <boost/property_tree/ini_parser.hpp>
#include <boost/property_tree/ptree.hpp>
#include <glib.h>
#include <sqlite3.h>

#include <filesystem>
#include <fstream>

namespace bench {

namespace {

class Sqlite final : public Reader
{
  public:
    Sqlite(const std::string& directory, wqspcfg::Store& store)
    {
        std::filesystem::create_directories(directory);
        Check(sqlite3_open_v2((directory + "/values.sqlite").c_str(), &m_db,
                              SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr));
        Run("PRAGMA journal_mode = WAL");
        Run("PRAGMA mmap_size = 4294967296");
        Run("CREATE TABLE value (path TEXT, name TEXT, data, PRIMARY KEY (path, name)) WITHOUT ROWID");
        Run("BEGIN");
        auto* insert = Prepare("INSERT INTO value VALUES (?, ?, ?)");
        ForEachValue(store, [&](const StoredValue& value) {
            Bind(insert, 1, value.path);
            Bind(insert, 2, value.name);
            if (value.isText) {
                Bind(insert, 3, value.text);
            } else {
                Check(sqlite3_bind_int64(insert, 3, value.number));
            }
            Step(insert, SQLITE_DONE);
        });
        sqlite3_finalize(insert);
        Run("COMMIT");
        Run("PRAGMA wal_checkpoint(TRUNCATE)");
        Run("ANALYZE");
        m_begin = Prepare("BEGIN");
        m_end = Prepare("COMMIT");
        m_select = Prepare("SELECT data FROM value WHERE path = ? AND name = ?");
    }
    ~Sqlite() override
    {
        sqlite3_finalize(m_begin);
        sqlite3_finalize(m_end);
        sqlite3_finalize(m_select);
        sqlite3_close(m_db);
    }
    Sqlite(const Sqlite&) = delete;
    Sqlite& operator=(const Sqlite&) = delete;

    void Load(const Work& work, Result& result) override
    {
        Step(m_begin, SQLITE_DONE);
        for (const auto& question : work.questions) {
            Bind(m_select, 1, question.flatPath);
            Bind(m_select, 2, question.flatName);
            if (sqlite3_step(m_select) != SQLITE_ROW) {
                result.Missing(question);
            } else if (question.isText) {
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_select, 0));
                result.Text(question, {text, static_cast<std::size_t>(sqlite3_column_bytes(m_select, 0))});
            } else {
                result.Number(question, static_cast<DWORD>(sqlite3_column_int64(m_select, 0)));
            }
            Check(sqlite3_reset(m_select));
        }
        Step(m_end, SQLITE_DONE);
    }

  private:
    void Check(int result)
    {
        if (result != SQLITE_OK) {
            Die(std::string("SQLite: ") + sqlite3_errmsg(m_db));
        }
    }
    void Run(const char* sql) { Check(sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr)); }
    sqlite3_stmt* Prepare(const char* sql)
    {
        sqlite3_stmt* statement = nullptr;
        Check(sqlite3_prepare_v3(m_db, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr));
        return statement;
    }
    void Bind(sqlite3_stmt* statement, int index, const std::string& text)
    {
        Check(sqlite3_bind_text(statement, index, text.data(), static_cast<int>(text.size()), SQLITE_STATIC));
    }
    void Step(sqlite3_stmt* statement, int expected)
    {
        if (sqlite3_step(statement) != expected) {
            Check(SQLITE_ERROR);
        }
        Check(sqlite3_reset(statement));
    }

    sqlite3* m_db = nullptr;
    sqlite3_stmt* m_begin = nullptr;
    sqlite3_stmt* m_end = nullptr;
    sqlite3_stmt* m_select = nullptr;
};

// "[path]" and "name=value" lines.
std::string WriteIni(const std::string& directory, wqspcfg::Store& store)
{
    std::filesystem::create_directories(directory);
    auto file = directory + "/values.ini";
    std::ofstream output(file);
    std::string section;
    ForEachValue(store, [&](const StoredValue& value) {
        if (value.path != section) {
            section = value.path;
            output << '[' << section << "]\n";
        }
        output << value.name << '=' << (value.isText ? value.text : std::to_string(value.number)) << '\n';
    });
    output.close();
    if (!output) {
        Die(file + " cannot be written");
    }
    return file;
}

class GLibKeyFile final : public Reader
{
  public:
    GLibKeyFile(std::string file, bool everyLoad) : m_file(std::move(file))
    {
        if (!everyLoad) {
            m_parsed = Parse();
        }
    }
    ~GLibKeyFile() override
    {
        if (m_parsed != nullptr) {
            g_key_file_free(m_parsed);
        }
    }
    GLibKeyFile(const GLibKeyFile&) = delete;
    GLibKeyFile& operator=(const GLibKeyFile&) = delete;

    void Load(const Work& work, Result& result) override
    {
        auto* values = m_parsed != nullptr ? m_parsed : Parse();
        for (const auto& question : work.questions) {
            const auto* group = question.flatPath.c_str();
            const auto* key = question.flatName.c_str();
            if (question.isText) {
                gchar* text = g_key_file_get_string(values, group, key, nullptr);
                result.Text(question, std::string_view(text));
                g_free(text);
            } else {
                GError* error = nullptr;
                const auto number = g_key_file_get_uint64(values, group, key, &error);
                if (error == nullptr) {
                    result.Number(question, static_cast<DWORD>(number));
                } else {
                    g_error_free(error);
                    result.Missing(question);
                }
            }
        }
        if (values != m_parsed) {
            g_key_file_free(values);
        }
    }

  private:
    GKeyFile* Parse() const
    {
        auto* values = g_key_file_new();
        if (!g_key_file_load_from_file(values, m_file.c_str(), G_KEY_FILE_NONE, nullptr)) {
            Die(m_file + " cannot be read");
        }
        return values;
    }

    std::string m_file;
    GKeyFile* m_parsed = nullptr;
};

class BoostIni final : public Reader
{
  public:
    BoostIni(std::string file, bool everyLoad) : m_file(std::move(file)), m_everyLoad(everyLoad)
    {
        boost::property_tree::read_ini(m_file, m_values);
    }

    void Load(const Work& work, Result& result) override
    {
        if (m_everyLoad) {
            boost::property_tree::read_ini(m_file, m_values);
        }
        for (const auto& question : work.questions) {
            const auto section = m_values.find(question.flatPath);
            if (section == m_values.not_found()) {
                result.Missing(question);
                continue;
            }
            const auto value = section->second.find(question.flatName);
            if (value == section->second.not_found()) {
                result.Missing(question);
            } else if (question.isText) {
                result.Text(question, value->second.data());
            } else {
                result.Number(question, value->second.get_value<DWORD>());
            }
        }
    }

  private:
    std::string m_file;
    bool m_everyLoad;
    boost::property_tree::ptree m_values;
};

} // namespace

std::unique_ptr<Reader> OpenSqlite(const std::string& directory, wqspcfg::Store& store)
{
    return std::make_unique<Sqlite>(directory, store);
}

std::unique_ptr<Reader> OpenGLibKeyFile(const std::string& directory, wqspcfg::Store& store, bool everyLoad)
{
    return std::make_unique<GLibKeyFile>(WriteIni(directory, store), everyLoad);
}

std::unique_ptr<Reader> OpenBoostIni(const std::string& directory, wqspcfg::Store& store, bool everyLoad)
{
    return std::make_unique<BoostIni>(WriteIni(directory, store), everyLoad);
}

} // namespace bench
