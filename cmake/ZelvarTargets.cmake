# SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
# SPDX-License-Identifier: MIT
#
# What every target of the project shares: the language, the warnings, the sanitizers, where the
# programs go.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

# A compiler cache is used when there is one; nothing depends on it.
find_program(ZELVAR_CCACHE ccache)
if(ZELVAR_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${ZELVAR_CCACHE}")
endif()

# What most files of a target include is read once a target, not once a file. A file still includes
# what it uses: the preset `analyse` and a compiler without precompiled headers read nothing else.
set(ZELVAR_STANDARD_HEADERS <algorithm> <array> <chrono> <cstdint> <functional> <map> <memory> <optional>
                            <span> <sstream> <string> <string_view> <utility> <vector>)
set(ZELVAR_QT_HEADERS <QAbstractItemView> <QApplication> <QCheckBox> <QComboBox> <QGridLayout> <QGroupBox>
                      <QKeyEvent> <QLabel> <QLineEdit> <QMouseEvent> <QPushButton> <QRadioButton>
                      <QStyleOption> <QTabWidget> <QTimer>)

add_library(zelvar_options INTERFACE)
if(MSVC)
    target_compile_options(zelvar_options INTERFACE /W4 $<$<BOOL:${ZELVAR_STRICT}>:/WX>
                                                    /permissive- /utf-8)
else()
    target_compile_options(
        zelvar_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                                 -Wno-sign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
                                 $<$<BOOL:${ZELVAR_STRICT}>:-Werror>
                                 # GCC 12 and later raise false alarms for concatenated strings
                                 # (GCC bug 105651 and its kin).
                                 $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
                                 $<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overflow>)
endif()
if(ZELVAR_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(
        zelvar_options INTERFACE ${sanitizers}
                                 # Under the sanitizers GCC takes parts of std::regex for
                                 # uninitialized.
                                 $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_options(zelvar_options INTERFACE ${sanitizers})
endif()
target_compile_definitions(
    zelvar_options INTERFACE $<$<BOOL:${ZELVAR_STRICT}>:_GLIBCXX_ASSERTIONS>
                             QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
                             QT_DISABLE_DEPRECATED_BEFORE=0x060200)
