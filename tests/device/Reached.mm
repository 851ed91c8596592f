#include <cstdint>
#include <cstdlib>
#include <dlfcn.h>
#include <fstream>
#include <span>

/// Where the functions of the device backend begin, and whether they were called: what the compiler
/// gives with -fsanitize-coverage (Clang's documentation of SanitizerCoverage). At the end, the
/// addresses of those that were not are written to the file that QUILLMERE_UNREACHED names, one a
/// line, relative to the program's own.
namespace {

struct Function {
  std::uintptr_t address;
  std::uintptr_t flags;
};

std::span<const bool> called;
std::span<const Function> functions;

class Report {
 public:
  ~Report() {
    const char* path = std::getenv("QUILLMERE_UNREACHED");
    Dl_info program;
    if (!path || !dladdr(&called, &program)) return;
    const auto base = reinterpret_cast<std::uintptr_t>(program.dli_fbase);
    std::ofstream file(path);
    for (std::size_t index = 0; index < called.size(); ++index) {
      if (!called[index]) file << std::hex << "0x" << functions[index].address - base << '\n';
    }
  }
} const report;

}  // namespace

// The compiler calls these at the start, once for each source; they always tell of all of them.
extern "C" {
void __sanitizer_cov_bool_flag_init(const bool* first, const bool* end) { called = {first, end}; }
void __sanitizer_cov_pcs_init(const std::uintptr_t* first, const std::uintptr_t* end) {
  functions = {reinterpret_cast<const Function*>(first), reinterpret_cast<const Function*>(end)};
}
}
