// Ends with 0 if each call that the library `early` made at load gave what the table says.
#include <cstdio>

extern const int early_wrong_rows;

int main() {
  std::printf("%d rows wrong at load\n", early_wrong_rows);
  return early_wrong_rows;
}
