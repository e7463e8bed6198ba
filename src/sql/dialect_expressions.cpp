#include "sql/dialect_expressions.h"

#include "sql/function_names.h"
#include "sql/statement_errors.h"

#include <algorithm>

namespace {

using Kind = Value::Kind;

/// Deeper ones are refused before they reach the end of the stack.
constexpr int MaximumDepth = 200;

/// The engine takes no longer chain of one operator.
constexpr int LongestChain = 1000;

void LimitChain(int& terms)
{
    if (++terms > LongestChain)
        throw TooComplexError();
}

bool IsNumeric(Kind kind)
{
    return kind == Kind::Long || kind == Kind::Double || kind == Kind::Money;
}

Expression Truth(std::string sql)
{
    return {std::move(sql), Kind::Boolean, {}, -1};
}

void RefuseMismatch(const Expression& left, const Expression& right)
{
    const bool known = left.kind != Kind::Null && right.kind != Kind::Null;
    if (known && (left.kind == Kind::Text) != (right.kind == Kind::Text))
        throw CriteriaMismatchError();
}

/// Truth counts as -1 where it meets a number.
void CountTruth(Expression& operand, const Expression& other)
{
    if (operand.kind == Kind::Boolean && IsNumeric(other.kind))
        operand.sql = "(-" + operand.sql + ")";
}

std::string Folded(const std::string& sql)
{
    return FoldFunction + ("(" + sql + ")");
}

std::string Both(const std::string& condition, const std::string& other)
{
    return std::string("(").append(condition).append(" AND ").append(other).append(")");
}

Kind KindOfResult(Kind left, Kind right, const std::string& sign)
{
    if (sign == "/" || left == Kind::Double || right == Kind::Double)
        return Kind::Double;
    if (left == Kind::Money || right == Kind::Money)
        return Kind::Money;
    if (left == Kind::Date || right == Kind::Date)
        return Kind::Null;
    return Kind::Long;
}

} // namespace

ExpressionReader::ExpressionReader(TokenStream& tokens, const NameScope& scope, std::vector<Coercion>& coercions)
    : m_tokens(tokens)
    , m_scope(scope)
    , m_coercions(coercions)
    , m_marks(coercions.size(), LiteralMark::Whole)
{
}

RuntimeError ExpressionReader::MissingOperator(size_t start) const
{
    size_t end = m_tokens.Place();
    // The word or value that stands where an operator should belongs to the expression as the user wrote it.
    const Token& next = m_tokens.Peek();
    if (m_tokens.AtName() || next.kind == Token::Kind::Lifted || next.kind == Token::Kind::Number)
        ++end;
    return MissingOperatorError(m_tokens.Text(start, end));
}

Expression ExpressionReader::Read()
{
    if (m_depth == 0) {
        m_start = m_tokens.Place();
        m_alternatives.clear();
    }
    if (++m_depth > MaximumDepth)
        throw TooComplexError();
    Expression expression = ReadOr();
    --m_depth;
    return expression;
}

Expression ExpressionReader::ReadAlternative()
{
    if (m_depth > 1)
        return ReadAnd();
    m_named.assign(m_scope.Sources().size(), false);
    Expression alternative = ReadAnd();
    m_alternatives.push_back({alternative.sql, m_named});
    return alternative;
}

Expression ExpressionReader::ReadOr()
{
    Expression left = ReadAlternative();
    if (!m_tokens.AtWord("or"))
        return left;
    std::string terms = "(" + left.sql;
    for (int count = 1; m_tokens.TakeWord("or"); LimitChain(count))
        terms += " OR " + ReadAlternative().sql;
    return Truth(terms + ")");
}

Expression ExpressionReader::ReadAnd()
{
    Expression left = ReadNot();
    if (!m_tokens.AtWord("and"))
        return left;
    std::string terms = std::move(left.sql);
    for (int count = 1; m_tokens.TakeWord("and"); LimitChain(count))
        terms += " AND " + ReadNot().sql;
    return Truth(std::move(terms));
}

Expression ExpressionReader::ReadNot()
{
    bool negated = false;
    bool any = false;
    for (; m_tokens.TakeWord("not"); any = true)
        negated = !negated;
    Expression operand = ReadComparison();
    if (!any)
        return operand;
    return Truth((negated ? "NOT (" : "(") + operand.sql + ")");
}

Expression ExpressionReader::ReadComparison()
{
    Expression left = ReadJoined();
    for (;;) {
        if (m_tokens.AtWord("is")) {
            left = ReadIs(left);
            continue;
        }
        const bool negated = m_tokens.AtWord("not");
        const std::string negation = negated ? "NOT " : "";
        if (negated)
            m_tokens.Take();
        if (m_tokens.TakeWord("in"))
            left = ReadIn(left, negation);
        else if (m_tokens.TakeWord("between"))
            left = ReadBetween(left, negation);
        else if (m_tokens.TakeWord("like"))
            left = ReadLike(left, negation);
        else if (negated)
            throw MissingOperator(m_start);
        else if (m_tokens.AtSign("=") || m_tokens.AtSign("<>") || m_tokens.AtSign("<") || m_tokens.AtSign(">")
            || m_tokens.AtSign("<=") || m_tokens.AtSign(">=")) {
            const std::string sign(m_tokens.Take().text);
            left = Compare(left, sign, ReadJoined());
        } else {
            return left;
        }
    }
}

bool ExpressionReader::HasOtherLetters(const Expression& expression) const
{
    return expression.literal >= 0 && m_marks[size_t(expression.literal)] == LiteralMark::OtherText;
}

bool ExpressionReader::IsIndexed(const ColumnReference& column) const
{
    return column && ::IsIndexed(*m_scope.Sources()[column.source].table, *column.column);
}

/// A condition that the index can answer: it holds for each row whose text is the literal's.
std::string ExpressionReader::AmongSpellings(const Expression& column, const Expression& text) const
{
    const QString names = QStringLiteral("'%1', '%2'")
                              .arg(m_scope.Sources()[column.column.source].table->name, column.column.column->name);
    return column.sql + " IN (SELECT value FROM json_each(" + SpellingsFunction + "(" + names.toStdString() + ", "
        + text.sql + ")))";
}

Expression ExpressionReader::Compare(Expression left, const std::string& sign, Expression right) const
{
    RefuseMismatch(left, right);
    CountTruth(left, right);
    CountTruth(right, left);
    if (left.kind != Kind::Text && right.kind != Kind::Text) {
        Expression truth = Truth(left.sql + " " + sign + " " + right.sql);
        if (sign == "=" && left.column && right.column)
            truth.equals = {left.column, right.column};
        return truth;
    }
    if (sign != "=" && sign != "<>")
        return Truth(left.sql + " " + sign + " " + right.sql + " COLLATE " + LocaleCollation);
    // The columns' own collation folds the plain alphabet and keeps the index; other letters need the whole rule.
    if (HasOtherLetters(left) || HasOtherLetters(right)) {
        const std::string whole = Folded(left.sql) + " " + sign + " " + Folded(right.sql);
        if (sign == "=" && IsIndexed(left.column))
            return Truth(Both(AmongSpellings(left, right), whole));
        if (sign == "=" && IsIndexed(right.column))
            return Truth(Both(AmongSpellings(right, left), whole));
        return Truth(whole);
    }
    const char* collation = left.column || right.column ? "" : " COLLATE NOCASE";
    return Truth(left.sql + " " + sign + " " + right.sql + collation);
}

Expression ExpressionReader::ReadIs(const Expression& left)
{
    m_tokens.Take();
    const bool negated = m_tokens.TakeWord("not");
    if (!m_tokens.TakeWord("null"))
        throw MissingOperator(m_start);
    return Truth(left.sql + (negated ? " IS NOT NULL" : " IS NULL"));
}

Expression ExpressionReader::ReadIn(const Expression& left, const std::string& negation)
{
    if (!m_tokens.TakeSign("("))
        throw MissingOperator(m_start);
    std::vector<Expression> values;
    do {
        values.push_back(ReadJoined());
        RefuseMismatch(left, values.back());
    } while (m_tokens.TakeSign(","));
    if (!m_tokens.TakeSign(")"))
        throw MissingOperator(m_start);
    const bool folded =
        std::any_of(values.begin(), values.end(), [this](const Expression& value) { return HasOtherLetters(value); });
    std::string list;
    for (const Expression& value : values)
        list += (list.empty() ? "" : ", ") + (folded ? Folded(value.sql) : value.sql);
    return Truth((folded ? Folded(left.sql) : left.sql) + " " + negation + "IN (" + list + ")");
}

Expression ExpressionReader::ReadBetween(const Expression& left, const std::string& negation)
{
    const Expression low = ReadJoined();
    if (!m_tokens.TakeWord("and"))
        throw SyntaxError(QStringLiteral("Between operator without And in query expression '%1'.")
                              .arg(m_tokens.Text(m_start, m_tokens.Place())));
    const Expression high = ReadJoined();
    RefuseMismatch(left, low);
    RefuseMismatch(left, high);
    const std::string collation = left.kind == Kind::Text ? std::string(" COLLATE ") + LocaleCollation : "";
    return Truth("(" + left.sql + collation + " " + negation + "BETWEEN " + low.sql + " AND " + high.sql + ")");
}

Expression ExpressionReader::ReadLike(const Expression& left, const std::string& negation)
{
    const Expression pattern = ReadJoined();
    return Truth(negation + LikeFunction + "(" + pattern.sql + ", " + left.sql + ")");
}

Expression ExpressionReader::ReadJoined()
{
    Expression left = ReadSum();
    if (!m_tokens.AtSign("&"))
        return left;
    const auto orEmpty = [](const Expression& part) { return "ifnull(" + part.sql + ", '')"; };
    std::string parts = "(";
    parts += orEmpty(left);
    for (int count = 1; m_tokens.TakeSign("&"); LimitChain(count))
        parts += " || " + orEmpty(ReadSum());
    return {parts + ")", Kind::Text, {}, -1};
}

Expression ExpressionReader::AsNumber(Expression operand)
{
    if (operand.kind == Kind::Text && operand.literal >= 0)
        m_coercions[size_t(operand.literal)] = Coercion::Double;
    if (operand.kind == Kind::Boolean)
        operand.sql = "(-" + operand.sql + ")";
    return operand;
}

Expression ExpressionReader::Arithmetic(Expression left, const std::string& sign, Expression right)
{
    left = AsNumber(std::move(left));
    right = AsNumber(std::move(right));
    const Kind kind = KindOfResult(left.kind, right.kind, sign);
    // The engine divides whole numbers to a whole number.
    left.sql += sign == "/" ? " * 1.0 / " : " " + sign + " ";
    left.sql += right.sql;
    return {std::move(left.sql), kind, {}, -1};
}

Expression ExpressionReader::ReadSum()
{
    Expression left = ReadProduct();
    for (int count = 1; m_tokens.AtSign("+") || m_tokens.AtSign("-"); LimitChain(count)) {
        const std::string sign(m_tokens.Take().text);
        left = Arithmetic(std::move(left), sign, ReadProduct());
    }
    return left;
}

Expression ExpressionReader::ReadProduct()
{
    Expression left = ReadSigned();
    for (int count = 1; m_tokens.AtSign("*") || m_tokens.AtSign("/"); LimitChain(count)) {
        const std::string sign(m_tokens.Take().text);
        left = Arithmetic(std::move(left), sign, ReadSigned());
    }
    return left;
}

Expression ExpressionReader::ReadSigned()
{
    bool negative = false;
    bool any = false;
    for (; m_tokens.AtSign("-") || m_tokens.AtSign("+"); any = true)
        negative = (m_tokens.Take().text == "-") != negative;
    if (!any)
        return ReadPrimary();
    const Expression operand = AsNumber(ReadPrimary());
    return {(negative ? "(-" : "(") + operand.sql + ")", operand.kind, {}, -1};
}

Expression ExpressionReader::ReadPrimary()
{
    if (m_tokens.TakeSign("(")) {
        Expression inner = Read();
        if (!m_tokens.TakeSign(")"))
            throw MissingOperator(m_start);
        inner.sql = "(" + inner.sql + ")";
        return inner;
    }
    switch (m_tokens.Peek().kind) {
    case Token::Kind::Lifted:
        return ReadLiteral();
    case Token::Kind::Bracketed:
        return ReadName();
    case Token::Kind::Word:
        return ReadWord();
    default:
        throw MissingOperator(m_start);
    }
}

Expression ExpressionReader::ReadLiteral()
{
    const Token token = m_tokens.Take();
    const LiteralMark mark = m_tokens.MarkOf(token);
    m_marks[size_t(token.literal)] = mark;
    std::string sql = "?";
    sql += std::to_string(token.literal + 1);
    switch (mark) {
    case LiteralMark::Whole:
        return {sql, Kind::Long, {}, token.literal};
    case LiteralMark::Fraction:
        return {sql, Kind::Double, {}, token.literal};
    case LiteralMark::Date:
        return {sql, Kind::Date, {}, token.literal};
    case LiteralMark::AsciiText:
    case LiteralMark::OtherText:
        break;
    }
    return {sql, Kind::Text, {}, token.literal};
}

Expression ExpressionReader::ReadWord()
{
    if (m_tokens.Peek(1).kind == Token::Kind::Sign && m_tokens.Peek(1).text == "(" && m_tokens.AtName())
        return ReadFunction();
    for (const char* yes : {"true", "yes", "on"}) {
        if (m_tokens.TakeWord(yes))
            return Truth("1");
    }
    for (const char* no : {"false", "no", "off"}) {
        if (m_tokens.TakeWord(no))
            return Truth("0");
    }
    if (m_tokens.TakeWord("null"))
        return {"NULL", Kind::Null, {}, -1};
    if (!m_tokens.AtName())
        throw MissingOperator(m_start);
    return ReadName();
}

Expression ExpressionReader::ReadName()
{
    const Token first = m_tokens.Take();
    std::string_view qualifier;
    std::string_view name = first.text;
    if (m_tokens.TakeSign(".")) {
        if (m_tokens.Peek().kind != Token::Kind::Word && m_tokens.Peek().kind != Token::Kind::Bracketed)
            throw MissingOperator(m_start);
        qualifier = first.text;
        name = m_tokens.Take().text;
    }
    const ColumnReference column = m_scope.Resolve(qualifier, name);
    m_named[column.source] = true;
    return {m_scope.SqlOf(column), KindOf(column.column->kind), column, -1};
}

Expression ExpressionReader::ReadFunction()
{
    const std::string name =
        QString::fromUtf8(m_tokens.Peek().text.data(), qsizetype(m_tokens.Peek().text.size())).toLower().toStdString();
    m_tokens.Take();
    m_tokens.Take();
    if (name == "count" || name == "sum" || name == "min" || name == "max" || name == "avg")
        return ReadAggregate(name);
    const char* digits = name == "year" ? "1, 4" : name == "month" ? "6, 2" : name == "day" ? "9, 2" : nullptr;
    if (digits == nullptr)
        throw SyntaxError(QStringLiteral("Undefined function '%1' in expression.").arg(QString::fromStdString(name)));
    const Expression date = Read();
    if (!m_tokens.TakeSign(")"))
        throw MissingOperator(m_start);
    return {"CAST(substr(" + date.sql + ", " + digits + ") AS INTEGER)", Kind::Long, {}, -1};
}

Expression ExpressionReader::ReadAggregate(const std::string& name)
{
    if (name == "count" && m_tokens.TakeSign("*")) {
        if (!m_tokens.TakeSign(")"))
            throw MissingOperator(m_start);
        return {"count(*)", Kind::Long, {}, -1};
    }
    const Expression operand = Read();
    if (!m_tokens.TakeSign(")"))
        throw MissingOperator(m_start);
    Kind kind = operand.kind;
    if (name == "count")
        kind = Kind::Long;
    else if ((name == "sum" || name == "avg") && kind != Kind::Money)
        kind = Kind::Double;
    return {name + "(" + operand.sql + ")", kind, {}, -1};
}

std::string SortSql(const Expression& expression)
{
    return expression.kind == Kind::Text ? SortKeyFunction + ("(" + expression.sql + ")") : expression.sql;
}
