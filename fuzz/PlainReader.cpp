#include "PlainReader.h"

#include <string_view>

namespace tarnwick::fuzz {

namespace {

constexpr int END = -1;
constexpr int HIDDEN_END = 255;  // the byte that the scanner can't tell from the end

bool isHexadecimal(char c) {
  return std::string_view("0123456789abcdefABCDEF").find(c) != std::string_view::npos;
}

}  // namespace

int PlainReader::read() {
  const int byte = at_ < text_.size() ? static_cast<unsigned char>(text_[at_++]) : END;
  // In a comment both are the end.
  if (byte == END || (byte == HIDDEN_END && place_ != Place::Code)) ended_ = true;
  return byte;
}

PlainReader::Character PlainReader::zero(bool inside) const {
  return {Outcome::Delivered, 0, !ended_ && inside};
}

PlainReader::Character PlainReader::deliver(char c, bool inside) {
  // Braces count wherever they stand, in strings too.
  if (c == '{') ++depth_;
  if (c == '}') closing_ = --depth_ <= levels_.back();
  return {Outcome::Delivered, c, inside};
}

bool PlainReader::quote(char c) {
  switch (quote_) {
    case Quote::None:
      if (c == '"') quote_ = Quote::String;
      if (c == '\'') quote_ = Quote::Constant;
      return true;
    case Quote::String:
      if (c == '"') quote_ = Quote::None;
      if (c == '\\') quote_ = Quote::StringEscape;
      return true;
    case Quote::StringEscape:
      quote_ = Quote::String;
      return true;
    case Quote::Constant:
      quote_ = c == '\\' ? Quote::ConstantEscape : Quote::ConstantEnd;
      return true;
    case Quote::ConstantEscape:
      quote_ = c == 'u' ? Quote::Unicode : Quote::ConstantEnd;
      return true;
    case Quote::Unicode:
      if (isHexadecimal(c)) return true;
      break;
    case Quote::ConstantEnd:
      break;
  }
  quote_ = Quote::None;
  return c == '\'';
}

PlainReader::Character PlainReader::next() {
  if (closing_) {
    closing_ = false;
    if (levels_.size() > 1) levels_.pop_back();
    return {depth_ >= 0 ? Outcome::EndBrace : Outcome::TooManyBraces};
  }
  if (held_ != 0) return deliver(std::exchange(held_, '\0'), false);
  return fromText();
}

PlainReader::Character PlainReader::fromText() {
  for (;;) {
    const int byte = read();
    const char c = byte == END || byte == HIDDEN_END ? '\0' : static_cast<char>(byte);
    // A constant that a line break spoils is refused before the line is counted.
    if (place_ == Place::Code && !quote(c)) return {Outcome::BadConstant};
    const bool inside = quote_ != Quote::None;
    if (c == 0) return zero(inside);
    if (c == '\n' || c == '\r') ++line_;
    switch (place_) {
      case Place::Code:
        if (c != '/' || inside) return deliver(c, inside);
        place_ = Place::Slash;
        break;
      case Place::Slash:
        place_ = c == '*' ? Place::Block : c == '/' ? Place::Line : Place::Code;
        if (place_ != Place::Code) break;
        held_ = c;
        return deliver('/', false);
      case Place::Block:
        if (c == '*') place_ = Place::BlockStar;
        break;
      case Place::BlockStar:
        if (c != '*') place_ = c == '/' ? Place::AfterBlock : Place::Block;
        break;
      case Place::Line:
        if (c != '\n' && c != '\r') break;
        [[fallthrough]];
      case Place::AfterBlock:
        // This character has passed the quotes by.
        place_ = Place::Code;
        return deliver(c, false);
    }
  }
}

PlainReader::Statement PlainReader::readStatement() {
  Statement statement;
  while (!atEnd()) {
    const Character found = next();
    statement.outcome = found.outcome;
    // The zero that stands for the end is no part of the statement.
    if (found.outcome != Outcome::Delivered || atEnd()) break;
    if (found.c == '{' && !found.inside && !statement.raw.empty()) {
      --depth_;
      held_ = found.c;
      break;
    }
    statement.raw += found.c;
    if (!found.inside) statement.code += found.c;
    if (!found.inside && found.c == ';') break;
  }
  return statement;
}

void PlainReader::pushLevel() {
  if (depth_ > levels_.back()) levels_.push_back(depth_);
}

}  // namespace tarnwick::fuzz
