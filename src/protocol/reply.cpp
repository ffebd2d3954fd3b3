// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/reply.h"

namespace zelvar {

bool Reply::Is(int count, std::initializer_list<int> first) const {
    if (Count() != count) {
        return false;
    }
    int k = 0;
    for (const int value : first) {
        if ((*this)[++k] != value) {
            return false;
        }
    }
    return true;
}

}  // namespace zelvar
