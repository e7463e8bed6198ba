#include "sql/dialect_tokens.h"

#include <algorithm>
#include <array>

namespace {

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c | 32) : c;
}

bool IsWord(char c)
{
    return (Lower(c) >= 'a' && Lower(c) <= 'z') || (c >= '0' && c <= '9') || c == '_' || (c & 0x80) != 0;
}

bool IsNumber(std::string_view text)
{
    return text.front() >= '0' && text.front() <= '9';
}

bool IsKeyword(std::string_view word)
{
    static constexpr std::array keywords{"select", "distinct", "top", "from", "where", "group", "order", "by", "having",
        "as", "and", "or", "not", "in", "is", "null", "like", "between", "on", "inner", "left", "right", "outer",
        "join", "union", "update", "set", "delete", "asc", "desc", "true", "false", "insert", "into", "values"};
    return std::any_of(
        keywords.begin(), keywords.end(), [word](const char* keyword) { return SameWord(word, keyword); });
}

Token ReadToken(std::string_view text, size_t at, int& literals)
{
    const char c = text[at];
    if (c > 0 && c <= char(LiteralMark::Date))
        return {Token::Kind::Lifted, text.substr(at, 1), at, at + 1, literals++};
    if (c == '[') {
        const size_t close = text.find(']', at);
        return {Token::Kind::Bracketed, text.substr(at + 1, close - at - 1), at, close + 1, -1};
    }
    size_t end = at + 1;
    if (IsWord(c)) {
        while (end < text.size() && IsWord(text[end]))
            ++end;
        const std::string_view word = text.substr(at, end - at);
        return {IsNumber(word) ? Token::Kind::Number : Token::Kind::Word, word, at, end, -1};
    }
    const std::string_view pair = text.substr(at, 2);
    if (pair == "<>" || pair == "<=" || pair == ">=")
        ++end;
    return {Token::Kind::Sign, text.substr(at, end - at), at, end, -1};
}

QString LiteralText(const Literal& literal)
{
    struct Writer {
        QString operator()(qint64 number) const { return QString::number(number); }
        QString operator()(double number) const { return QString::number(number); }
        QString operator()(const std::string& text) const { return u'\'' + QString::fromStdString(text) + u'\''; }
        QString operator()(const DateLiteral& date) const { return u'#' + QString::fromStdString(date.iso) + u'#'; }
    };
    return std::visit(Writer(), literal);
}

} // namespace

bool SameWord(std::string_view left, std::string_view right)
{
    return left.size() == right.size()
        && std::equal(left.begin(), left.end(), right.begin(), [](char a, char b) { return Lower(a) == Lower(b); });
}

TokenStream::TokenStream(const StatementShape& shape)
    : m_shape(shape)
{
    const std::string_view text = shape.text;
    int literals = 0;
    for (size_t at = 0; at < text.size();) {
        if (text[at] == ' ') {
            ++at;
            continue;
        }
        m_tokens.push_back(ReadToken(text, at, literals));
        at = m_tokens.back().end;
    }
    m_tokens.push_back({Token::Kind::End, {}, text.size(), text.size(), -1});
}

const Token& TokenStream::Peek(size_t ahead) const
{
    return m_tokens[std::min(m_at + ahead, m_tokens.size() - 1)];
}

Token TokenStream::Take()
{
    const Token token = Peek();
    if (m_at + 1 < m_tokens.size())
        ++m_at;
    return token;
}

bool TokenStream::AtWord(std::string_view keyword) const
{
    return Peek().kind == Token::Kind::Word && SameWord(Peek().text, keyword);
}

bool TokenStream::TakeWord(std::string_view keyword)
{
    const bool there = AtWord(keyword);
    if (there)
        Take();
    return there;
}

bool TokenStream::AtSign(std::string_view sign) const
{
    return Peek().kind == Token::Kind::Sign && Peek().text == sign;
}

bool TokenStream::TakeSign(std::string_view sign)
{
    const bool there = AtSign(sign);
    if (there)
        Take();
    return there;
}

bool TokenStream::AtName() const
{
    const Token& token = Peek();
    return token.kind == Token::Kind::Bracketed || (token.kind == Token::Kind::Word && !IsKeyword(token.text));
}

LiteralMark TokenStream::MarkOf(const Token& token) const
{
    return LiteralMark(token.text.front());
}

QString TokenStream::Text(size_t fromPlace, size_t toPlace) const
{
    QString text;
    size_t done = m_tokens[fromPlace].position;
    for (size_t place = fromPlace; place < toPlace && m_tokens[place].kind != Token::Kind::End; ++place) {
        const Token& token = m_tokens[place];
        text += QString::fromStdString(m_shape.text.substr(done, token.position - done));
        text += token.literal >= 0
            ? LiteralText(m_shape.literals[size_t(token.literal)])
            : QString::fromStdString(m_shape.text.substr(token.position, token.end - token.position));
        done = token.end;
    }
    return text;
}
