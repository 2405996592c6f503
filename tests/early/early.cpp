// A library whose static initialiser makes every call of the golden table, before main and before
// or behind the initialisers of everything else, by the order in which it is linked.
#include "golden/table.h"

extern const int early_wrong_rows;
const int early_wrong_rows = zeph_golden::check_table(ZEPH_GOLDEN_TABLE).wrong;
