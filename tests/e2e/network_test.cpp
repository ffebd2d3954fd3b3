// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <arpa/inet.h>
#include <fstream>
#include <iterator>
#include <netinet/in.h>
#include <sstream>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

#include "docs/document.h"
#include "harness/journey.h"

namespace zelvar::e2e {

namespace {

using zelvar::testing::FencedBlock;
using zelvar::testing::FencedBlocksOf;
using zelvar::testing::ReadDocument;

constexpr char kManual[] = "docs/manual.md";
// What the manual's examples name, and what stands here in its place.
constexpr char kExampleDevice[] = "/dev/ttyUSB0";
constexpr char kExamplePort[] = "2300";
constexpr char kExampleLink[] = "$HOME/zelvar";

/// The block of the manual in that language whose text begins so.
std::string BlockOfManual(const std::string& language, const std::string& beginning) {
    for (const FencedBlock& block : FencedBlocksOf(ReadDocument(kManual))) {
        std::string text;
        for (const auto& line : block.lines) {
            text += line.text + "\n";
        }
        if (block.language == language && text.starts_with(beginning)) {
            return text;
        }
    }
    throw std::runtime_error("the manual has no such block: " + beginning);
}

void Replace(std::string& text, const std::string& what, const std::string& with) {
    const std::size_t at = text.find(what);
    ASSERT_NE(at, std::string::npos) << what << " in " << text;
    text.replace(at, what.size(), with);
}

/// The path of an installed program; empty when there is none.
std::string Installed(const std::string& name) {
    for (const char* folder : {"/usr/bin/", "/usr/sbin/", "/usr/local/bin/", "/usr/local/sbin/"}) {
        if (access((folder + name).c_str(), X_OK) == 0) {
            return folder + name;
        }
    }
    return {};
}

/// A TCP port that is free at present.
std::string FreePort() {
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof(address);
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    if (bind(listener, generic, size) != 0 || getsockname(listener, generic, &size) != 0) {
        throw std::runtime_error("no free TCP port");
    }
    close(listener);
    return std::to_string(ntohs(address.sin_port));
}

std::vector<std::string> Words(const std::string& line) {
    std::istringstream in(line);
    return {std::istream_iterator<std::string>(in), {}};
}

/// The program reaches the unit through ser2net and socat, set up as the manual says.
class Network : public Journey {
  protected:
    void SetUp() override {
        if (ser2net_.empty() || socat_.empty()) {
            GTEST_SKIP() << "ser2net and socat are not installed";
        }
        unit.emplace(folder);
        Replace(configuration_, kExampleDevice, unit->Device());
        Replace(configuration_, kExamplePort, port_);
        Replace(command_, kExampleLink, link_);
        Replace(command_, kExamplePort, port_);
        command_ = Words(command_)[1] + " " + Words(command_)[2];
    }

    void StartServer() {
        const std::string path = folder.Path("ser2net.yaml");
        std::ofstream(path) << configuration_;
        // Without -u a server that a test kills would leave the lock of its device behind.
        server_.emplace(std::vector<std::string>{ser2net_, "-n", "-d", "-u", "-c", path, "-P",
                                                 folder.Path("pid")});
    }

    /// Returns when the line is up. The server may still be starting.
    void StartClient() {
        const std::vector<std::string> addresses = Words(command_);
        client_.emplace(std::vector<std::string>{socat_, "-d", "-d", addresses[0],
                                                 addresses[1] + ",retry=100,interval=0.1"});
        ASSERT_TRUE(Until([this] {
            return client_->Errors().find("starting data transfer") != std::string::npos;
        })) << client_->Describe();
    }

    void OpenPort() {
        program->Choose("cboPort", "1");
        ASSERT_EQ(program->TextOf("lblBarDevice"), "Port 1: " + link_ + ", 19k2");
        program->Click("cmdReset");
        ASSERT_TRUE(program->Shows("lblBarStatus", "System Status = Stop"));
    }

    void StartAll() {
        StartServer();
        StartClient();
        program.emplace(folder, link_);
        OpenPort();
    }

    std::string ser2net_ = Installed("ser2net");
    std::string socat_ = Installed("socat");
    std::string port_ = FreePort();
    std::string link_ = folder.Path("line");
    std::string configuration_ = BlockOfManual("yaml", "%YAML");
    std::string command_ = BlockOfManual("sh", "socat ");
    std::optional<ChildProcess> server_;
    std::optional<ChildProcess> client_;
};

TEST_F(Network, StatusDriveAndAlarmWorkAsOnACable) {
    StartAll();
    EXPECT_TRUE(Polls());
    RequestStatus();
    EXPECT_GT(unit->Count("command.module-status"), 79) << "every place for a module is asked";
    program->Type("txtTestBlock", "250");
    program->Key("AnalogSpeed", "End");
    EXPECT_TRUE(Until([&] { return unit->Count("command.analog-speed") == 1; }));
    EXPECT_TRUE(program->Shows("lblTestAnalogSpeed", ">>63"));
    unit->Do("overcurrent 250");
    EXPECT_TRUE(program->Says({"window", "dlgAlarmLog"}, "visible"));
    EXPECT_EQ(unit->Count("broken-frames"), 0);
    EXPECT_EQ(program->BoxesShown(), std::vector<std::string>{});
}

TEST_F(Network, TheServerSetsTheRateOfTheLineNotTheProgram) {
    StartAll();
    EXPECT_EQ(unit->Value("line-baud"), "19200");
    program->DoubleClick("lblCom");
    program->Click("optBaud(1)");
    EXPECT_EQ(program->TextOf("lblBarDevice"), "Port 1: " + link_ + ", 38k4");
    EXPECT_TRUE(Polls());
    EXPECT_EQ(unit->Value("line-baud"), "19200");
}

TEST_F(Network, AServerThatGoesAwayIsALostDeviceAndComesBack) {
    StartAll();
    server_.reset();
    EXPECT_TRUE(program->Shows("lblBarDevice", "Connection to port 1 lost"));
    // Whether an exchange was just in progress is chance: then it has its box.
    if (program->Box() != BoxText()) {
        EXPECT_EQ(program->Box(), NoResponseBox());
        program->Answer("OK");
    }
    EXPECT_TRUE(client_->WaitForExit().has_value()) << "socat ends with its connection";
    StartServer();
    StartClient();
    program->Click("cmdRefresh");
    OpenPort();
    EXPECT_TRUE(Polls());
}

}  // namespace

}  // namespace zelvar::e2e
