#include "platform/vb/Like.h"

#include "platform/vb/VbError.h"

#include <vector>

namespace vb {

namespace {

struct Token {
    enum Kind { Literal, Any, Star, Digit, Set };
    Kind kind;
    QChar ch = {};
    bool negate = false;
    std::vector<std::pair<QChar, QChar>> ranges = {};

    static Token of(Kind k, QChar c = {}) { return Token{k, c}; }

    bool matches(QChar c) const
    {
        switch (kind) {
        case Literal: return c == ch;
        case Any: return true;
        case Digit: return c >= QLatin1Char('0') && c <= QLatin1Char('9');
        case Set: {
            bool in = false;
            for (const auto& r : ranges)
                if (c >= r.first && c <= r.second) {
                    in = true;
                    break;
                }
            return in != negate;
        }
        case Star: break;
        }
        return false;
    }
};

std::vector<Token> compile(const QString& p)
{
    std::vector<Token> out;
    for (qsizetype i = 0; i < p.size(); ++i) {
        const QChar c = p[i];
        if (c == QLatin1Char('?'))
            out.push_back(Token::of(Token::Any));
        else if (c == QLatin1Char('*')) {
            if (out.empty() || out.back().kind != Token::Star)
                out.push_back(Token::of(Token::Star));
        } else if (c == QLatin1Char('#'))
            out.push_back(Token::of(Token::Digit));
        else if (c == QLatin1Char('[')) {
            const qsizetype close = p.indexOf(QLatin1Char(']'), i + 1);
            if (close < 0)
                throw VbError::InvalidPatternString();
            Token t = Token::of(Token::Set);
            qsizetype j = i + 1;
            if (j < close && p[j] == QLatin1Char('!')) {
                t.negate = true;
                ++j;
            }
            if (j == close && !t.negate) {
                // "[]" matches the empty string in VB: it contributes nothing.
                i = close;
                continue;
            }
            for (; j < close; ++j) {
                if (j + 2 < close && p[j + 1] == QLatin1Char('-')) {
                    QChar lo = p[j], hi = p[j + 2];
                    if (hi < lo)
                        throw VbError::InvalidPatternString();
                    t.ranges.emplace_back(lo, hi);
                    j += 2;
                } else {
                    t.ranges.emplace_back(p[j], p[j]);
                }
            }
            out.push_back(std::move(t));
            i = close;
        } else
            out.push_back(Token::of(Token::Literal, c));
    }
    return out;
}

} // namespace

bool Like(const QString& text, const QString& pattern)
{
    const std::vector<Token> toks = compile(pattern);
    // Iterative wildcard match with backtracking to the last star.
    qsizetype t = 0, p = 0, starP = -1, starT = 0;
    const qsizetype n = text.size(), m = qsizetype(toks.size());
    while (t < n) {
        if (p < m && toks[p].kind != Token::Star && toks[p].matches(text[t])) {
            ++t;
            ++p;
        } else if (p < m && toks[p].kind == Token::Star) {
            starP = p++;
            starT = t;
        } else if (starP >= 0) {
            p = starP + 1;
            t = ++starT;
        } else {
            return false;
        }
    }
    while (p < m && toks[p].kind == Token::Star)
        ++p;
    return p == m;
}

} // namespace vb
