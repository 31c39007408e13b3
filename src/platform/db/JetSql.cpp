#include "platform/db/JetSql.h"

#include <QRegularExpression>
#include <QStringList>

#include <sqlite3.h>

namespace db {

namespace {

enum class Tok { Space, Ident, Quoted, Str, Num, Date, Punct };

struct Token {
    Tok type;
    QStringView text; // as written; for Quoted, Str and Date the inner text
};

bool isIdentStart(QChar c) { return c.isLetter() || c == QLatin1Char('_') || c.unicode() >= 0x80; }
bool isIdentPart(QChar c) { return isIdentStart(c) || c.isDigit() || c == QLatin1Char('$'); }
bool isDigit(QChar c) { return c.unicode() >= '0' && c.unicode() <= '9'; }

// Fills out with the tokens of s; out keeps its capacity from one statement to the next.
void tokenize(QStringView s, std::vector<Token>& out)
{
    out.clear();
    out.reserve(size_t(s.size() / 3));
    qsizetype i = 0;
    const qsizetype n = s.size();
    while (i < n) {
        const QChar c = s[i];
        const qsizetype start = i;
        if (c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\r') || c == QLatin1Char('\n')) {
            while (i < n
                   && (s[i] == QLatin1Char(' ') || s[i] == QLatin1Char('\t') || s[i] == QLatin1Char('\r') || s[i] == QLatin1Char('\n')))
                ++i;
            out.push_back({Tok::Space, s.mid(start, i - start)});
        } else if (c == QLatin1Char('\'') || c == QLatin1Char('"')) {
            // 'text' with '' inside, or Jet's "text" with "" inside; an unclosed one runs to the end
            ++i;
            while (i < n) {
                const qsizetype q = s.indexOf(c, i);
                if (q < 0) {
                    i = n;
                    break;
                }
                i = q;
                if (i + 1 < n && s[i + 1] == c) {
                    i += 2;
                    continue;
                }
                break;
            }
            out.push_back({Tok::Str, s.mid(start, qMin(i + 1, n) - start)});
            i = qMin(i + 1, n);
        } else if (c == QLatin1Char('[')) {
            const qsizetype close = s.indexOf(QLatin1Char(']'), i + 1);
            const qsizetype end = close < 0 ? n : close;
            out.push_back({Tok::Quoted, s.mid(i + 1, end - i - 1)});
            i = close < 0 ? n : close + 1;
        } else if (c == QLatin1Char('#')) {
            const qsizetype close = s.indexOf(QLatin1Char('#'), i + 1);
            if (close < 0) {
                out.push_back({Tok::Punct, s.mid(i, 1)});
                ++i;
            } else {
                out.push_back({Tok::Date, s.mid(i + 1, close - i - 1)});
                i = close + 1;
            }
        } else if (isDigit(c) || (c == QLatin1Char('.') && i + 1 < n && isDigit(s[i + 1]))) {
            while (i < n && isDigit(s[i]))
                ++i;
            if (i < n && s[i] == QLatin1Char('.')) {
                ++i;
                while (i < n && isDigit(s[i]))
                    ++i;
            }
            if (i < n && (s[i] == QLatin1Char('e') || s[i] == QLatin1Char('E'))) {
                qsizetype j = i + 1;
                if (j < n && (s[j] == QLatin1Char('+') || s[j] == QLatin1Char('-')))
                    ++j;
                if (j < n && isDigit(s[j])) {
                    i = j;
                    while (i < n && isDigit(s[i]))
                        ++i;
                }
            }
            out.push_back({Tok::Num, s.mid(start, i - start)});
        } else if (isIdentStart(c)) {
            while (i < n && isIdentPart(s[i]))
                ++i;
            out.push_back({Tok::Ident, s.mid(start, i - start)});
        } else {
            if (i + 1 < n) {
                // <> <= >= || !=
                const char16_t a = c.unicode(), b = s[i + 1].unicode();
                if ((a == '<' && (b == '>' || b == '=')) || (a == '>' && b == '=') || (a == '|' && b == '|') || (a == '!' && b == '=')) {
                    out.push_back({Tok::Punct, s.mid(i, 2)});
                    i += 2;
                    continue;
                }
            }
            out.push_back({Tok::Punct, s.mid(i, 1)});
            ++i;
        }
    }
}

// An identifier that is the given keyword, written in any case. The words are ASCII: a plain
// ASCII identifier is compared byte by byte, anything else the way Qt folds case.
template <size_t N> inline bool is(const Token& t, const char (&word)[N])
{
    constexpr qsizetype n = qsizetype(N - 1);
    if (t.type != Tok::Ident || t.text.size() != n)
        return false;
    for (qsizetype i = 0; i < n; ++i) {
        char16_t c = t.text[i].unicode();
        if (c >= 0x80)
            return t.text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
        if (c >= 'a' && c <= 'z')
            c = char16_t(c - ('a' - 'A'));
        char16_t w = char16_t(word[i]);
        if (w >= 'a' && w <= 'z')
            w = char16_t(w - ('a' - 'A'));
        if (c != w)
            return false;
    }
    return true;
}

bool isPunct(const Token& t, char c) { return t.type == Tok::Punct && t.text.size() == 1 && t.text[0] == QLatin1Char(c); }

bool isSqliteKeyword(QStringView word)
{
    const QByteArray utf8 = word.toUtf8();
    return sqlite3_keyword_check(utf8.constData(), int(utf8.size())) != 0;
}

// Text between two quote characters, a quote inside doubled: "name" or 'literal'.
void appendQuoted(QString& out, QStringView text, QChar quote)
{
    out += quote;
    if (!text.contains(quote)) {
        out += text;
        out += quote;
        return;
    }
    for (QChar c : text) {
        if (c == quote)
            out += quote;
        out += c;
    }
    out += quote;
}

void appendQuotedName(QString& out, QStringView name) { appendQuoted(out, name, QLatin1Char('"')); }

void appendStringLiteral(QString& out, QStringView value) { appendQuoted(out, value, QLatin1Char('\'')); }

// Jet's string literal, 'x' or "x", as its value.
QString stringValue(QStringView lit)
{
    if (lit.isEmpty())
        return {};
    const QChar q = lit[0];
    QStringView inner = lit.mid(1);
    if (!inner.isEmpty() && inner.back() == q)
        inner.chop(1);
    if (!inner.contains(q))
        return inner.toString();
    QString v;
    v.reserve(inner.size());
    for (qsizetype i = 0; i < inner.size(); ++i) {
        v += inner[i];
        if (inner[i] == q && i + 1 < inner.size() && inner[i + 1] == q)
            ++i;
    }
    return v;
}

// #m/d/yyyy[ h:nn[:ss]]# in Jet's literal form (month first), as the ledger's date text.
QString dateLiteralValue(QStringView body)
{
    const QString t = body.trimmed().toString();
    const qsizetype blank = t.indexOf(QLatin1Char(' '));
    const QString datePart = blank < 0 ? t : t.left(blank);
    const QString timePart = blank < 0 ? QString() : t.mid(blank + 1).trimmed();
    const QStringList p = datePart.split(QRegularExpression(QStringLiteral("[/-]")));
    QString out;
    if (p.size() == 3) {
        // yyyy-mm-dd stays as it is; m/d/yyyy is turned around
        if (p[0].size() == 4)
            out = QStringLiteral("%1/%2/%3").arg(p[0], p[1].rightJustified(2, QLatin1Char('0')), p[2].rightJustified(2, QLatin1Char('0')));
        else
            out = QStringLiteral("%1/%2/%3").arg(p[2], p[0].rightJustified(2, QLatin1Char('0')), p[1].rightJustified(2, QLatin1Char('0')));
    } else {
        out = datePart;
    }
    if (!timePart.isEmpty()) {
        QStringList tp = timePart.split(QLatin1Char(':'));
        while (tp.size() < 3)
            tp << QStringLiteral("00");
        out += QLatin1Char(' ') + tp[0].rightJustified(2, QLatin1Char('0')) + QLatin1Char(':') + tp[1] + QLatin1Char(':') + tp[2];
    }
    return out;
}

} // namespace

namespace {

// The shape is mostly the statement's own text: a run of tokens that pass unchanged is copied
// as one piece, and only what is rewritten is appended by itself.
class ShapeWriter {
public:
    ShapeWriter(QString& out, QStringView source) : m_out(out), m_source(source) {}
    void add(QStringView t)
    {
        const quintptr at = quintptr(t.data());
        const quintptr from = quintptr(m_source.data());
        const quintptr to = quintptr(m_source.data() + m_source.size());
        if (at >= from && at + quintptr(t.size()) * sizeof(QChar) <= to) {
            if (m_size > 0 && m_begin + m_size == t.data()) {
                m_size += t.size();
                return;
            }
            flush();
            m_begin = t.data();
            m_size = t.size();
            return;
        }
        flush();
        m_out += t;
    }
    void add(QChar c)
    {
        flush();
        m_out += c;
    }
    qsizetype size()
    {
        flush();
        return m_out.size();
    }
    void flush()
    {
        if (m_size > 0)
            m_out.append(m_begin, m_size);
        m_size = 0;
    }

private:
    QString& m_out;
    QStringView m_source;
    const QChar* m_begin = nullptr;
    qsizetype m_size = 0;
};

// One pass over the tokens; withSql also writes the SQLite text with the literals in place,
// which running a statement does not need.
JetStatement parse(QStringView jet, bool withSql)
{
    // the system runs one statement at a time: the token list is reused
    thread_local std::vector<Token> tokens;
    tokenize(jet, tokens);
    const std::vector<Token>& toks = tokens;
    JetStatement st;
    if (withSql)
        st.sql.reserve(jet.size() + 16);
    st.shape.reserve(jet.size() + 16);

    auto nextSolid = [&](size_t i) -> size_t {
        ++i;
        while (i < toks.size() && toks[i].type == Tok::Space)
            ++i;
        return i;
    };

    size_t first = 0;
    while (first < toks.size() && toks[first].type == Tok::Space)
        ++first;
    if (first < toks.size()) {
        if (is(toks[first], "SELECT"))
            st.kind = JetStatement::Kind::Select;
        else if (is(toks[first], "INSERT"))
            st.kind = JetStatement::Kind::Insert;
        else if (is(toks[first], "UPDATE"))
            st.kind = JetStatement::Kind::Update;
        else if (is(toks[first], "DELETE"))
            st.kind = JetStatement::Kind::Delete;
    }
    const bool isSelect = st.kind == JetStatement::Kind::Select;
    if (!isSelect && st.kind != JetStatement::Kind::Other)
        st.params.reserve(8);

    int depth = 0;
    bool inSet = false;        // inside the SET list of an UPDATE, at depth 0
    bool expectTarget = false; // the next name is an assignment target
    bool liftLiterals = !isSelect && st.kind != JetStatement::Kind::Other;
    bool afterOrderOrGroup = false;

    ShapeWriter shape(st.shape, jet);
    auto emitBoth = [&](QStringView t) {
        if (withSql)
            st.sql += t;
        shape.add(t);
    };
    // A name in double quotes; the shape takes the name itself as a piece of the source.
    auto emitName = [&](QStringView name) {
        if (withSql)
            appendQuotedName(st.sql, name);
        if (name.contains(QLatin1Char('"'))) {
            QString quoted;
            appendQuotedName(quoted, name);
            shape.add(quoted);
            return;
        }
        shape.add(QLatin1Char('"'));
        shape.add(name);
        shape.add(QLatin1Char('"'));
    };
    auto lifting = [&] { return liftLiterals && !afterOrderOrGroup; };
    auto emitLiteral = [&](QStringView sqlText, Literal value) {
        if (withSql)
            st.sql += sqlText;
        if (lifting()) {
            shape.add(QLatin1Char('?'));
            st.params.push_back(std::move(value));
        } else {
            shape.add(sqlText);
        }
    };

    for (size_t i = 0; i < toks.size(); ++i) {
        const Token& t = toks[i];
        switch (t.type) {
        case Tok::Space: emitBoth(t.text); break;
        case Tok::Punct:
            if (isPunct(t, '('))
                ++depth;
            else if (isPunct(t, ')'))
                --depth;
            else if (isPunct(t, ',') && inSet && depth == 0)
                expectTarget = true;
            else if (isPunct(t, '*') && st.kind == JetStatement::Kind::Delete && i == nextSolid(first)) {
                // DELETE * FROM: the star goes, and the blank behind it with it
                if (i + 1 < toks.size() && toks[i + 1].type == Tok::Space)
                    ++i;
                break;
            }
            emitBoth(t.text);
            break;
        case Tok::Str: {
            QString value = stringValue(t.text);
            if (!withSql && lifting()) {
                shape.add(QLatin1Char('?'));
                st.params.push_back(std::move(value));
                break;
            }
            QString lit;
            appendStringLiteral(lit, value);
            emitLiteral(lit, std::move(value));
            break;
        }
        case Tok::Date: {
            QString value = dateLiteralValue(t.text);
            QString lit;
            appendStringLiteral(lit, value);
            emitLiteral(lit, std::move(value));
            break;
        }
        case Tok::Num: {
            bool ok = false;
            const qlonglong v = t.text.toLongLong(&ok);
            if (ok)
                emitLiteral(t.text, std::int64_t(v));
            else
                emitLiteral(t.text, t.text.toDouble());
            break;
        }
        case Tok::Quoted:
        case Tok::Ident: {
            // a qualified target on the left of SET keeps its column only
            if (expectTarget) {
                const size_t dot = nextSolid(i);
                const size_t col = dot < toks.size() ? nextSolid(dot) : toks.size();
                if (dot < toks.size() && isPunct(toks[dot], '.') && col < toks.size()
                    && (toks[col].type == Tok::Ident || toks[col].type == Tok::Quoted)) {
                    i = col;
                }
                expectTarget = false;
                emitName(toks[i].text);
                break;
            }
            if (t.type == Tok::Quoted) {
                emitName(t.text);
                break;
            }
            const size_t next = nextSolid(i);
            const bool afterDot = i > 0 && isPunct(toks[i - 1], '.');
            bool quote = false;
            if (i == first) {
                quote = false;
            } else if (is(t, "Key")) {
                quote = true;
            } else if (is(t, "Group")) {
                quote = !(next < toks.size() && is(toks[next], "BY"));
            } else if (is(t, "Update")) {
                quote = true;
            } else if (afterDot) {
                quote = isSqliteKeyword(t.text);
            }
            if (quote) {
                emitName(t.text);
                break;
            }
            emitBoth(t.text);
            if (depth == 0) {
                if (st.kind == JetStatement::Kind::Update && is(t, "SET")) {
                    inSet = true;
                    expectTarget = true;
                } else if (is(t, "WHERE")) {
                    inSet = false;
                    expectTarget = false;
                    if (isSelect)
                        liftLiterals = true;
                } else if (is(t, "ORDER") || (is(t, "GROUP") && next < toks.size() && is(toks[next], "BY"))) {
                    afterOrderOrGroup = true;
                    if (is(t, "GROUP"))
                        st.grouped = true;
                } else if (is(t, "HAVING")) {
                    afterOrderOrGroup = false;
                }
                if (isSelect && st.selectListAt < 0 && i == first) {
                    // the select list begins after SELECT, or after SELECT DISTINCT
                    size_t j = next;
                    if (j < toks.size() && (is(toks[j], "DISTINCT") || is(toks[j], "DISTINCTROW"))) {
                        st.distinct = true;
                        for (size_t k = i + 1; k <= j; ++k)
                            emitBoth(toks[k].text);
                        i = j;
                    }
                    st.selectListAt = shape.size();
                }
            }
            break;
        }
        }
    }
    shape.flush();
    return st;
}

} // namespace

JetStatement JetSql::Parse(QStringView jet) { return parse(jet, true); }

JetStatement JetSql::ParseShape(QStringView jet) { return parse(jet, false); }

QString QuoteName(QStringView name)
{
    QString out;
    out.reserve(name.size() + 2);
    appendQuotedName(out, name);
    return out;
}

} // namespace db
