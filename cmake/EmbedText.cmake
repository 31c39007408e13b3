# cmake -DIN=file -DOUT=file.cpp -DNAME=symbol -P EmbedText.cmake
# Writes a C++ source that holds the text of IN as a char array named NAME.
file(READ "${IN}" content HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," content "${content}")
file(WRITE "${OUT}" "// Generated from ${IN}; do not edit.\n#include <cstddef>\nextern const unsigned char ${NAME}[] = {${content} 0x00};\nextern const std::size_t ${NAME}_size = sizeof(${NAME}) - 1;\n")
