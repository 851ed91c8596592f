/// What the run time and Foundation make once and keep is theirs (LeakSanitizer's documentation of
/// suppressions). That the bundle's own objects are freed is what MemoryTest.mm shows.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libobjc.so\nleak:libgnustep-base.so\n";
}
