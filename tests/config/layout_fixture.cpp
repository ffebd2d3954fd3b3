// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "layout_fixture.h"

#include <QAbstractButton>

#include <algorithm>

namespace zelvar::testing {

LayoutFixture::LayoutFixture() {
    OpenPort();
}

Bytes LayoutFixture::AnswerStatus(const SentFrame& frame) {
    // Version 3.20 is 3 << 3 | 2, 0.
    constexpr int kVersion = 26;
    if (frame.values == Values{1, 2}) {
        return WireFrame({1, 2, kVersion, 0});
    }
    if (frame.values == Values{1, 10}) {
        return WireFrame({1, 10, unitType, kVersion, 0});
    }
    if (frame.values.size() == 3 && frame.values[1] == 11) {
        const int address = frame.values[2];
        const auto module = modules.find(address);
        const int status = module == modules.end() ? 0 : module->second;
        return WireFrame({1, 11, address, status, kVersion, 0});
    }
    return EmptyReply();
}

void LayoutFixture::RequestStatus() {
    port.responder = [this](const SentFrame& frame) { return AnswerStatus(frame); };
    Click("cmdStatus");
    port.responder = [](const SentFrame&) { return EmptyReply(); };
    port.ForgetSent();
    // The status view must not cover the controls that the test is about.
    FindWindow("dlgZelvarStatus44")->hide();
    window->activateWindow();
}

Frames LayoutFixture::Commands() {
    Frames frames = port.SentValues();
    frames.erase(std::remove(frames.begin(), frames.end(), Values()), frames.end());
    return frames;
}

void LayoutFixture::Receive(const Values& reply) {
    port.replies = {WireFrame(reply)};
    timer.enabled = true;
    Poll();
}

}  // namespace zelvar::testing
