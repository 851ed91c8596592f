#pragma once

#include <stdexcept>
#include <string_view>

namespace phone_tests {

/// Why a file does not run on a phone.
class NotSigned : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Checks the signature as the system's kernel does, each page by its hash. Throws NotSigned unless
/// the bytes are a thin Mach-O file of 64 bits with an ad-hoc signature by SHA-256 that covers all
/// before it. Formats: Apple's xnu, EXTERNAL_HEADERS/mach-o/loader.h and osfmk/kern/cs_blobs.h.
void checkSignature(std::string_view file);

}  // namespace phone_tests
