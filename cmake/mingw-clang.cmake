# Clang for 64-bit Windows, with the headers and the C++ library of mingw-w64. The programs run here under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(triple x86_64-w64-mingw32)
foreach(language C CXX)
    set(CMAKE_${language}_COMPILER_TARGET ${triple})
endforeach()
find_program(CMAKE_C_COMPILER NAMES clang-19 clang REQUIRED)
find_program(CMAKE_CXX_COMPILER NAMES clang++-19 clang++ REQUIRED)
find_program(CMAKE_RC_COMPILER NAMES llvm-windres-19 llvm-windres REQUIRED)
find_program(CMAKE_AR NAMES llvm-ar-19 llvm-ar REQUIRED)
find_program(CMAKE_RANLIB NAMES llvm-ranlib-19 llvm-ranlib REQUIRED)
find_program(TESSARY_WINE NAMES wine64 wine)

if(TESSARY_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${TESSARY_WINE})
endif()

set(CMAKE_EXE_LINKER_FLAGS_INIT "-fuse-ld=lld -static -pthread")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-fuse-ld=lld -static -pthread")

# Debian has two flavours of this compiler's library. Clang takes the one without threads when both are installed.
file(GLOB win32Flavour /usr/lib/gcc/${triple}/*-win32)
file(GLOB posixFlavour /usr/lib/gcc/${triple}/*-posix)
if(win32Flavour AND posixFlavour)
    list(GET posixFlavour -1 library)
    set(headers ${library}/include/c++)
    set(CMAKE_CXX_FLAGS_INIT "-nostdinc++ -isystem ${headers} -isystem ${headers}/${triple}")
    string(APPEND CMAKE_EXE_LINKER_FLAGS_INIT " -L${library}")
    string(APPEND CMAKE_SHARED_LINKER_FLAGS_INIT " -L${library}")
endif()

set(CMAKE_FIND_ROOT_PATH /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
