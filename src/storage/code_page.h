// The 8-bit code page of texts in configuration files: Windows-1252.
#pragma once

#include <string>

namespace gloamtide {

// To UTF-8. The five bytes that the code page leaves free become the control characters of the same number.
std::string FromCodePage(const std::string& Bytes);

// From UTF-8. A character that the code page lacks becomes "?", and so does each byte that is no UTF-8.
std::string ToCodePage(const std::string& Text);

}  // namespace gloamtide
