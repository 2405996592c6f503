// Fields between blanks.
#ifndef ZEPH_FIELDS_BLANK_FIELDS_H
#define ZEPH_FIELDS_BLANK_FIELDS_H

#include "fields/field_outputs.h"

namespace zeph {

// The core of Zeph_Seperate: one pass, which stops at the byte that fills a middle or the last
// field. With limit 0 every field is the empty text.
void split_blank_fields(const char* text, FieldOutputs outputs, std::size_t limit);

}  // namespace zeph

#endif  // ZEPH_FIELDS_BLANK_FIELDS_H
