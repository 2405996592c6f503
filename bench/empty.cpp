// A library with nothing in it, to compare load times with.
extern "C" const char* zeph_empty() {
  return "";
}
