#pragma once

#include <QString>

namespace vb {

// VB's Like operator under Option Compare Binary (exact case): '?' any one character,
// '*' any run of characters, '#' one digit 0-9, "[abc]" and "[a-z]" one of a set,
// "[!abc]" one character not in the set. An unclosed '[' raises error 93.
bool Like(const QString& text, const QString& pattern);

} // namespace vb
