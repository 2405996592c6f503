// Fields between single delimiters.
#ifndef ZEPH_FIELDS_CHAR_FIELDS_H
#define ZEPH_FIELDS_CHAR_FIELDS_H

#include "fields/field_outputs.h"

namespace zeph {

// The core of Zeph_Seperate_Char: one pass; a zero delimiter is never found.
void split_char_fields(const char* text, char delimiter, FieldOutputs outputs, std::size_t limit);

}  // namespace zeph

#endif  // ZEPH_FIELDS_CHAR_FIELDS_H
