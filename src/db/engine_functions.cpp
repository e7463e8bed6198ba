#include "db/engine_functions.h"

#include "base/numbers.h"
#include "base/regional.h"
#include "base/runtime_error.h"
#include "db/engine_errors.h"
#include "sql/function_names.h"
#include "sql/like_pattern.h"
#include "sql/locale_order.h"
#include "sql/spellings.h"
#include "sql/value.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <memory>
#include <new>

#include <sqlite3.h>

namespace {

std::string_view TextOf(sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {text, size_t(sqlite3_value_bytes(value))};
}

QString Decoded(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

bool IsNull(sqlite3_value* value)
{
    return sqlite3_value_type(value) == SQLITE_NULL;
}

/// A pattern that stays the same over a statement is read once.
const LikePattern* PatternOf(sqlite3_context* context, sqlite3_value* value)
{
    if (void* kept = sqlite3_get_auxdata(context, 0))
        return static_cast<const LikePattern*>(kept);
    auto* pattern = new LikePattern(TextOf(value));
    sqlite3_set_auxdata(context, 0, pattern, [](void* old) { delete static_cast<LikePattern*>(old); });
    return static_cast<const LikePattern*>(sqlite3_get_auxdata(context, 0));
}

void Like(sqlite3_context* context, sqlite3_value** arguments)
{
    if (IsNull(arguments[0]) || IsNull(arguments[1]))
        return;
    // The engine may drop what is kept at once, when memory is short.
    const LikePattern* pattern = PatternOf(context, arguments[0]);
    const bool matches = pattern != nullptr ? pattern->Matches(TextOf(arguments[1]))
                                            : LikePattern(TextOf(arguments[0])).Matches(TextOf(arguments[1]));
    sqlite3_result_int(context, matches);
}

void Fold(sqlite3_context* context, sqlite3_value** arguments)
{
    if (IsNull(arguments[0]))
        return;
    const QByteArray folded = Decoded(TextOf(arguments[0])).toCaseFolded().toUtf8();
    sqlite3_result_text(context, folded.constData(), int(folded.size()), SQLITE_TRANSIENT);
}

/// Asks a column whether a text of it begins so: its index leads to the first that may.
class BeginningQuery {
public:
    BeginningQuery(sqlite3* handle, std::string_view table, std::string_view column)
    {
        const QByteArray sql = QStringLiteral("SELECT [%2] FROM [%1] WHERE [%2] >= ? ORDER BY [%2] LIMIT 1")
                                   .arg(Decoded(table), Decoded(column))
                                   .toUtf8();
        if (sqlite3_prepare_v2(handle, sql.constData(), int(sql.size()), &m_statement, nullptr) != SQLITE_OK)
            throw EngineError(handle);
    }
    ~BeginningQuery() { sqlite3_finalize(m_statement); }
    BeginningQuery(const BeginningQuery&) = delete;
    BeginningQuery& operator=(const BeginningQuery&) = delete;

    bool Answer(const std::string& beginning) const
    {
        sqlite3_bind_text(m_statement, 1, beginning.data(), int(beginning.size()), SQLITE_STATIC);
        const int code = sqlite3_step(m_statement);
        const auto* first = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, 0));
        // All of the bytes: a comparison that ends at a null character would take everything behind one for found.
        const auto size = size_t(sqlite3_column_bytes(m_statement, 0));
        const auto isAlike = [](char left, char right) { return sqlite3_strnicmp(&left, &right, 1) == 0; };
        const bool begins = size >= beginning.size() && std::equal(beginning.begin(), beginning.end(), first, isAlike);
        if (sqlite3_reset(m_statement) != SQLITE_OK || (code != SQLITE_ROW && code != SQLITE_DONE))
            throw EngineError(sqlite3_db_handle(m_statement));
        return begins;
    }

private:
    sqlite3_stmt* m_statement = nullptr;
};

/// The spellings of a text that a column may hold. The text itself is always among them: a comparison with none at all
/// would be false for a Null, too.
void FindSpellings(sqlite3_context* context, sqlite3_value** arguments)
{
    const std::string_view text = TextOf(arguments[2]);
    const BeginningQuery query(sqlite3_context_db_handle(context), TextOf(arguments[0]), TextOf(arguments[1]));
    QJsonArray spellings{Decoded(text)};
    for (const std::string& spelling : Spellings(text, [&](const std::string& start) { return query.Answer(start); }))
        spellings.append(Decoded(spelling));
    const QByteArray json = QJsonDocument(spellings).toJson(QJsonDocument::Compact);
    sqlite3_result_text(context, json.constData(), int(json.size()), SQLITE_TRANSIENT);
}

void ConvertNumber(sqlite3_context* context, Value::Kind kind, double number)
{
    switch (kind) {
    case Value::Kind::Long:
        return sqlite3_result_int64(context, CLng(number));
    case Value::Kind::Money:
        return sqlite3_result_double(context, CCur(number).ToDouble());
    case Value::Kind::Boolean:
        return sqlite3_result_int(context, number != 0);
    case Value::Kind::Text: {
        const QByteArray text = CStr(number).toUtf8();
        return sqlite3_result_text(context, text.constData(), int(text.size()), SQLITE_TRANSIENT);
    }
    default:
        return sqlite3_result_double(context, number);
    }
}

/// A computed value on its way into a column of a kind.
void Convert(sqlite3_context* context, sqlite3_value** arguments)
{
    const auto kind = Value::Kind(sqlite3_value_int(arguments[0]));
    sqlite3_value* value = arguments[1];
    if (IsNull(value))
        return;
    if (sqlite3_value_type(value) != SQLITE_TEXT)
        return ConvertNumber(context, kind, sqlite3_value_double(value));
    ConvertNumber(context, kind, CDbl(Decoded(TextOf(value))));
}

/// Nothing comes before the empty key that Null has; as a key it keeps the engine's sorter on its short way, which a
/// Null would end.
void SortKey(sqlite3_context* context, sqlite3_value** arguments)
{
    if (IsNull(arguments[0]))
        return sqlite3_result_text(context, "", 0, SQLITE_STATIC);
    if (sqlite3_value_type(arguments[0]) != SQLITE_TEXT)
        return sqlite3_result_value(context, arguments[0]);
    auto* order = static_cast<LocaleOrder*>(sqlite3_user_data(context));
    const std::string_view key = order->Key(TextOf(arguments[0]));
    sqlite3_result_text(context, key.data(), int(key.size()), SQLITE_TRANSIENT);
}

/// What a function throws becomes the failure of its statement: it must not cross the engine's frames.
template <void (*Function)(sqlite3_context*, sqlite3_value**)>
void Guarded(sqlite3_context* context, int, sqlite3_value** arguments)
{
    try {
        Function(context, arguments);
    } catch (const RuntimeError& error) {
        sqlite3_result_error(context, error.Description().toUtf8().constData(), -1);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    } catch (...) {
        sqlite3_result_error_code(context, SQLITE_INTERNAL);
    }
}

/// An order cannot fail: without the memory for the locale's rules texts are in the order of their bytes.
int CompareTexts(void* order, int leftSize, const void* left, int rightSize, const void* right)
{
    const std::string_view leftText(static_cast<const char*>(left), size_t(leftSize));
    const std::string_view rightText(static_cast<const char*>(right), size_t(rightSize));
    try {
        return static_cast<LocaleOrder*>(order)->Compare(leftText, rightText);
    } catch (...) {
        return leftText.compare(rightText);
    }
}

} // namespace

void RegisterEngineFunctions(sqlite3* handle)
{
    constexpr int Flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    constexpr int ReadsTheFile = SQLITE_UTF8;
    const auto check = [handle](int result) {
        if (result != SQLITE_OK)
            throw EngineError(handle);
    };
    const auto add = [&](const char* name, int arguments, int flags, auto* function) {
        check(sqlite3_create_function_v2(handle, name, arguments, flags, nullptr, function, nullptr, nullptr, nullptr));
    };
    add(LikeFunction, 2, Flags, Guarded<Like>);
    add(FoldFunction, 1, Flags, Guarded<Fold>);
    add(ConvertFunction, 2, Flags, Guarded<Convert>);
    add(SpellingsFunction, 3, ReadsTheFile, Guarded<FindSpellings>);
    // The engine owns the order, and lets it go with the function or when it cannot take it.
    LocaleOrder* order = std::make_unique<LocaleOrder>(Regional()).release();
    check(sqlite3_create_function_v2(handle, SortKeyFunction, 1, Flags, order, Guarded<SortKey>, nullptr, nullptr,
        [](void* old) { delete static_cast<LocaleOrder*>(old); }));
    check(sqlite3_create_collation_v2(handle, LocaleCollation, SQLITE_UTF8, order, CompareTexts, nullptr));
}
