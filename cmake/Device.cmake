# Toolchain of the phone: arm64, iOS 12 and later. On a Mac it is Xcode's; elsewhere clang and lld of
# Debian 12, against the SDK that scripts/phone-sdk puts together or a real one (CMAKE_OSX_SYSROOT).
set(CMAKE_SYSTEM_NAME iOS)
set(CMAKE_SYSTEM_PROCESSOR arm64)
set(CMAKE_OSX_DEPLOYMENT_TARGET 12.0 CACHE STRING "The oldest iOS that the bundle loads on")
set(CMAKE_OSX_ARCHITECTURES arm64 CACHE STRING "The bundle's slices")
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

if(NOT CMAKE_HOST_APPLE)
  set(llvm /usr/lib/llvm-14/bin)
  # From this folder, clang finds lld and libc++'s headers by itself.
  foreach(language CXX OBJCXX)
    set(CMAKE_${language}_COMPILER ${llvm}/clang++)
    set(CMAKE_${language}_COMPILER_TARGET arm64-apple-ios)
    # These headers are newer than the phone's library: what they declare as templates is made here
    # instead of being taken from there, where the oldest phones lack some of it.
    set(CMAKE_${language}_FLAGS_INIT "-stdlib=libc++ -D_LIBCPP_DISABLE_EXTERN_TEMPLATE")
  endforeach()
  set(CMAKE_MODULE_LINKER_FLAGS_INIT -fuse-ld=lld)
  set(CMAKE_AR ${llvm}/llvm-ar CACHE FILEPATH "")
  set(CMAKE_RANLIB ${llvm}/llvm-ranlib CACHE FILEPATH "")
  set(CMAKE_STRIP ${llvm}/llvm-strip CACHE FILEPATH "")
  set(CMAKE_INSTALL_NAME_TOOL ${llvm}/llvm-install-name-tool CACHE FILEPATH "")
endif()
