// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "link/reply_dispatch.h"
#include "link/system_status.h"
#include "platform/clock.h"
#include "platform/message_box.h"
#include "platform/serial_port.h"
#include "platform/timer.h"
#include "protocol/frame.h"

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
    /// @param text ASCII; lines end with "\r\n", and a line may come in several pieces
    virtual void AppendMessageLog(const std::string& text) = 0;
};

/// The line to the central unit. `Transact` is the one door to it: nothing else writes to the
/// port, and one exchange runs to its end before the next begins.
class Link {
  public:
    Link(SerialPort& port, Timer& pollTimer, const Clock& clock, MessageBox& messageBox,
         LinkView& view);

    /// Sends one command and waits for its reply, `kReplyLimit` seconds at most. A valid reply
    /// updates the status line, goes to the reply handlers and switches polling on; without one
    /// the user is told once and polling stays off.
    /// @param errorText what the user is told when no valid reply comes; empty stands for
    /// `kNoResponseText`
    /// @return whether a valid reply came. A value above 127 shows `kOverflowText` and gives
    /// false; with the port closed nothing is sent, nothing is shown and the result is false.
    bool Transact(const Command& command, std::string_view errorText = {});

    /// The last valid reply; after a failed exchange what came of one.
    const ReplyBuffer& Reply() const { return reply_; }

    ReplyDispatch& Handlers() { return handlers_; }

    bool IsOpen() const { return port_.IsOpen(); }

    /// Every command handler begins with this. @return whether the port is open; when it is not,
    /// the user is told `kSelectPortText`, unless the device vanished during this very handler,
    /// which the user knows from the exchange that failed.
    bool CheckPort();

    /// To be called when an outermost event handler begins.
    void BeginHandler() { exchangedInThisHandler_ = false; }

  private:
    enum class Sent { Whole, Overflow };

    void Flush();
    Sent SendFrame(const Command& command, std::string& line);
    void SendByte(std::uint8_t byte, std::string& line);
    std::string ReceiveReply();
    bool WaitForFrame(std::string& text);
    void ReportReply(const Command& command, const std::string& line, const std::string& replyText);

    SerialPort& port_;
    Timer& pollTimer_;
    const Clock& clock_;
    MessageBox& messageBox_;
    LinkView& view_;
    ReplyDispatch handlers_;
    ReplyBuffer reply_{};
    /// Flips after every frame sent, for the whole run of the program.
    bool frameToggle_ = false;
    bool exchangedInThisHandler_ = false;
};

}  // namespace zelvar
