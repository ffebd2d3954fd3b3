// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/driven_program.h"

#include <stdexcept>

#include "probe/wire_text.h"

namespace zelvar::e2e {

namespace {

/// How long a program may take to end before it is killed.
constexpr Milliseconds kExitGrace{2000};

QByteArray LineOf(const std::vector<std::string>& words) {
    QStringList list;
    for (const std::string& word : words) {
        list << QString::fromStdString(word);
    }
    return ToLine(list);
}

std::string Quoted(const std::vector<std::string>& words) {
    return LineOf(words).trimmed().toStdString();
}

/// @return the path
std::string ListenAt(QLocalServer& server, const std::string& path) {
    if (!server.listen(QString::fromStdString(path))) {
        throw std::runtime_error("no socket at " + path);
    }
    return path;
}

Variables Environment(const std::string& ports, const std::string& socket, Variables variables) {
    variables.insert({{"ZELVARCONFIG_PORTS", ports},
                      {"ZELVARPROBE_SOCKET", socket},
                      {"QT_QPA_PLATFORM", "offscreen"},
                      {"QT_QPA_GENERIC_PLUGINS", "zelvarprobe"},
                      {"QT_PLUGIN_PATH", ZELVARPROBE_PLUGINS}});
    return variables;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const BoxText& box) {
    return out << box.title << " | " << box.icon << " | " << box.text << " | " << box.buttons;
}

DrivenProgram::DrivenProgram(const TempFolder& folder, const std::string& ports,
                             const std::string& name, const Variables& variables)
    : process_({ZELVARCONFIG_PROGRAM},
               {Environment(ports, ListenAt(server_, folder.Path(name + ".sock")), variables),
                folder.Path(".")}) {
    // A program that ends at once must not cost the whole limit.
    Until([this] { return server_.hasPendingConnections() || !process_.IsRunning(); });
    probe_ = server_.nextPendingConnection();
    if (probe_ == nullptr) {
        throw std::runtime_error("the program does not start: " + process_.Describe());
    }
    // The probe is there before the windows; it answers when the program has started.
    Ask({"boxes"});
}

DrivenProgram::~DrivenProgram() {
    if (process_.IsRunning()) {
        probe_->write(LineOf({"quit"}));
        probe_->flush();
        process_.WaitForExit(kExitGrace);
    }
    process_.Kill();
}

std::vector<std::string> DrivenProgram::Ask(const std::vector<std::string>& words) {
    probe_->write(LineOf(words));
    const std::optional<std::string> line = ReceiveLine(*probe_);
    if (!line) {
        throw std::runtime_error("no answer to " + Quoted(words) + ": " + process_.Describe());
    }
    std::vector<std::string> answer;
    for (const QString& word : FromLine(QByteArray::fromStdString(*line))) {
        answer.push_back(word.toStdString());
    }
    if (answer.empty() || answer.front() != "ok") {
        throw std::runtime_error(Quoted(words) + ": " + *line);
    }
    answer.erase(answer.begin());
    return answer;
}

std::string DrivenProgram::AskOne(const std::vector<std::string>& words) {
    const std::vector<std::string> answer = Ask(words);
    return answer.empty() ? std::string() : answer.front();
}

BoxText DrivenProgram::Box() {
    const std::vector<std::string> values = Ask({"box"});
    constexpr std::size_t kParts = 4;
    return values.size() == kParts ? BoxText{values[0], values[1], values[2], values[3]}
                                   : BoxText{};
}

void DrivenProgram::Press(const std::string& control, const std::string& button,
                          const std::string& modifiers) {
    Do("press", control, button, modifiers);
}

void DrivenProgram::Answer(const std::string& button) {
    const BoxText box = Box();
    const std::size_t shown = BoxesShown().size();
    Ask({"answer", button});
    if (!Until([&] { return Box() != box || BoxesShown().size() > shown; })) {
        throw std::runtime_error("the message box stays open: " + box.text);
    }
}

BoxText DrivenProgram::AwaitBox() {
    BoxText box;
    Until([&] {
        box = Box();
        return box != BoxText{};
    });
    return box;
}

std::optional<std::string> DrivenProgram::Mismatch(const std::vector<std::string>& question,
                                                   const std::string& answer) {
    std::string last;
    if (Until([&] {
            last = AskOne(question);
            return last == answer;
        })) {
        return std::nullopt;
    }
    return Quoted(question) + ": expected '" + answer + "', found '" + last + "'; " +
           process_.Describe();
}

}  // namespace zelvar::e2e
