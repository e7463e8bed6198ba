#pragma once

#include "sql/statement_shape.h"

#include <string_view>

/// The tokens of a statement's shape, walked from left to right.

struct Token {
    enum class Kind { Word, Bracketed, Lifted, Number, Sign, End };
    Kind kind = Kind::End;
    std::string_view text; ///< without brackets
    size_t position = 0; ///< in the shape
    size_t end = 0;
    int literal = -1; ///< index of a lifted one
};

class TokenStream {
public:
    explicit TokenStream(const StatementShape& shape);

    const Token& Peek(size_t ahead = 0) const;
    Token Take();
    size_t Place() const { return m_at; }
    void GoTo(size_t place) { m_at = place; }

    /// Keywords are words without brackets, without regard to case.
    bool AtWord(std::string_view keyword) const;
    bool TakeWord(std::string_view keyword);
    bool AtSign(std::string_view sign) const;
    bool TakeSign(std::string_view sign);
    /// A name: a word that is no keyword of the dialect, or anything in brackets.
    bool AtName() const;

    LiteralMark MarkOf(const Token& token) const;
    /// The statement's own text from one place up to another.
    QString Text(size_t fromPlace, size_t toPlace) const;

private:
    const StatementShape& m_shape;
    std::vector<Token> m_tokens;
    size_t m_at = 0;
};

bool SameWord(std::string_view left, std::string_view right);
