// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "tour_lock.h"

#include <fcntl.h>
#include <filesystem>
#include <iostream>
#include <pwd.h>
#include <stdexcept>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zelvar::tour {

namespace {

namespace fs = std::filesystem;

constexpr char kPrefix[] = "zelvartour-";
constexpr char kSuffix[] = ".lock";

/// Not TMPDIR, which may differ from user to user.
constexpr char kFolder[] = "/tmp";

std::string OwnerOf(int file) {
    struct stat facts {};
    fstat(file, &facts);
    const passwd* user = getpwuid(facts.st_uid);
    return user != nullptr ? user->pw_name : std::to_string(facts.st_uid);
}

/// Others can read the file, whatever the umask: to lock it is all that they need.
int OpenOwn(const std::string& path) {
    constexpr mode_t kReadableByAll = 0644;
    const int file = open(path.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, kReadableByAll);
    if (file < 0) {
        throw std::runtime_error("cannot open " + path);
    }
    fchmod(file, kReadableByAll);
    return file;
}

void ExpectNotLocked(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return;
    }
    const bool isFree = flock(file, LOCK_SH | LOCK_NB) == 0;
    const std::string owner = OwnerOf(file);
    close(file);
    if (!isFree) {
        throw std::runtime_error("a tour of the user " + owner +
                                 " is running: please start this again when it has ended");
    }
}

}  // namespace

TourLock::TourLock() {
    const fs::path own = fs::path(kFolder) / (kPrefix + std::to_string(getuid()) + kSuffix);
    file_ = OpenOwn(own);
    if (flock(file_, LOCK_EX | LOCK_NB) != 0) {
        std::cout << "Waiting for another tour to end" << std::endl;
        flock(file_, LOCK_EX);
    }
    for (const fs::directory_entry& entry : fs::directory_iterator(kFolder)) {
        const fs::path& path = entry.path();
        if (path != own && path.filename().string().starts_with(kPrefix) &&
            path.extension() == kSuffix) {
            ExpectNotLocked(path);
        }
    }
}

TourLock::~TourLock() {
    close(file_);
}

}  // namespace zelvar::tour
