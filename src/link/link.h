// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "link/reply_dispatch.h"
#include "link/system_status.h"
#include "platform/clock.h"
#include "platform/message_box.h"
#include "platform/serial_port.h"
#include "platform/timer.h"
#include "protocol/command.h"
#include "protocol/reply.h"

namespace zelvar {

/// How long a reply may take, in seconds; one that ends exactly then still counts.
constexpr double kReplyLimit = 2.0;

inline constexpr std::string_view kNoResponseText = "No response from Zelvar";
inline constexpr std::string_view kSelectPortText = "Please select Comm-Port";
inline constexpr std::string_view kOpenFailedText = "Fout bij openen COM poort";
inline constexpr std::string_view kOverflowText = "Overflow";

/// What the link needs of the window: the Stop box, the status line and the message log.
class LinkView {
  public:
    virtual ~LinkView() = default;
    virtual bool IsStopTicked() const = 0;
    virtual void ShowSystemState(SystemState state) = 0;

    // Each exchange reports a `FrameSent`, then either `ReplyReceived` or `NoReply`.
    virtual void FrameSent(const FrameBytes& frame) = 0;
    /// @param frame the one that was sent
    virtual void ReplyReceived(const FrameBytes& frame, const Reply& reply) = 0;
    /// The user has closed the message box about it.
    virtual void NoReply() = 0;
};

/// The line to the central unit. `Transact` is the one door to it: nothing else writes to the
/// port, and one exchange runs to its end before the next begins.
class Link {
  public:
    Link(SerialPort& port, Timer& pollTimer, const Clock& clock, MessageBox& messageBox,
         LinkView& view);

    /// Sends one command and waits for its reply, `kReplyLimit` seconds at most. A valid reply
    /// updates the status line, goes to the reply handlers and switches polling on; without one
    /// the user is informed once and polling stays off.
    /// @param errorText what the user reads when no valid reply comes; empty stands for
    /// `kNoResponseText`
    /// @return the valid reply, if one came. A value above 127 shows `kOverflowText` and gives
    /// none; with the port closed nothing is sent, nothing is shown and there is none.
    std::optional<Reply> Transact(const Command& command, std::string_view errorText = {});

    ReplyDispatch& Handlers() { return handlers_; }

    bool IsOpen() const { return port_.IsOpen(); }

    /// Every command handler begins with this. A handler that sends several commands asks `IsOpen`
    /// before each further one: when the device has vanished meanwhile, the user knows it from the
    /// exchange that failed.
    /// @return whether the port is open; when it is not, the user is shown `kSelectPortText`
    bool CheckPort();

  private:
    void Flush();
    std::optional<Reply> ReceiveReply(const FrameBytes& frame);
    bool WaitForFrame(const FrameBytes& sent, FrameReader& reader);
    void ShowStateOf(const Reply& reply);

    SerialPort& port_;
    Timer& pollTimer_;
    const Clock& clock_;
    MessageBox& messageBox_;
    LinkView& view_;
    ReplyDispatch handlers_;
    /// Flips after every frame sent, for the whole run of the program.
    bool frameToggle_ = false;
};

}  // namespace zelvar
