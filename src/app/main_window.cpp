// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "app/main_window.h"

#include <QCloseEvent>
#include <QTimer>
#include <QVBoxLayout>

#include <memory>
#include <optional>

#include "controls/naming.h"
#include "logs/alarm_log.h"
#include "logs/message_log.h"
#include "platform/nested_loop.h"
#include "protocol/reports.h"
#include "protocol/status.h"

namespace zelvar {

namespace {

/// In milliseconds: the window is painted by then.
constexpr int kDescribeDelay = 100;

}  // namespace

MainWindow::MainWindow(const Platform& platform)
    : platform_(platform),
      link_(platform.port, platform.pollTimer, platform.clock, platform.messageBox, *this),
      poller_(link_, platform.port, platform.pollTimer),
      statusBar_(new StatusBar(this)),
      services_{link_, platform.messageBox, *statusBar_, platform.clock},
      portBar_(new PortBar(this)),
      tabs_(Named(new QTabWidget(this), "SSTab1", "Settings and tests")),
      vdTab_(new VDTab(services_, registry_, tabs_)),
      jsTab_(new JSTab(services_, tabs_)),
      kbTab_(new KBTab(services_, tabs_)),
      testTab_(new TestTab(services_, tabs_)),
      dlgMsgLog_(LazyWindow<LogWindow>::OnClose::Unload,
                 [] { return std::make_unique<LogWindow>(MessageLogKind()); }),
      dlgAlarmLog_(LazyWindow<LogWindow>::OnClose::Unload,
                   [] { return std::make_unique<LogWindow>(AlarmLogKind()); }),
      dlgZelvarStatus_(LazyWindow<DlgZelvarStatus>::OnClose::Keep),
      dlgZelvarStatus44_(LazyWindow<DlgZelvarStatus44>::OnClose::Keep),
      dlgZelvarFeedback_(LazyWindow<DlgZelvarFeedback>::OnClose::Unload) {
    setObjectName(QStringLiteral("frmZelvarConfig"));
    setWindowTitle(QStringLiteral("ZelvarConfig 1.40B"));
    BuildFrame();
    platform_.port.SetLostHandler([this] { PortLost(); });
    ConnectControls();
    ConnectReplies();
    Form_Load();
}

MainWindow::~MainWindow() {
    platform_.pollTimer.SetEnabled(false);
    platform_.port.SetLostHandler({});
    Form_Unload();
}

void MainWindow::BuildFrame() {
    auto* centre = new QWidget(this);
    auto* layout = new QVBoxLayout(centre);
    layout->addWidget(portBar_);
    layout->addWidget(tabs_, 1);
    setCentralWidget(centre);
    setStatusBar(statusBar_);
    tabs_->addTab(vdTab_, QStringLiteral("VDxx / QLRX-s"));
    tabs_->addTab(jsTab_, QStringLiteral("JS70"));
    tabs_->addTab(kbTab_, QStringLiteral("KB-x"));
    tabs_->addTab(testTab_, QStringLiteral("TEST"));
}

void MainWindow::ConnectControls() {
    connect(portBar_, &PortBar::portChosen, this, &MainWindow::cboPort_Click);
    connect(portBar_, &PortBar::refreshClicked, this, &MainWindow::cmdRefresh_Click);
    connect(portBar_, &PortBar::resetClicked, this, &MainWindow::cmdReset_Click);
    connect(portBar_, &PortBar::statusPressed, this, &MainWindow::cmdStatus_MouseDown);
    connect(portBar_, &PortBar::serviceRequested, this, &MainWindow::lblCom_DblClick);
    connect(portBar_, &PortBar::rateClicked, this, &MainWindow::optBaud_Click);
    connect(testTab_, &TestTab::feedbackMonitorWanted, this,
            [this] { dlgZelvarFeedback_.Get().BringIntoView(true); });
}

void MainWindow::ConnectReplies() {
    link_.Handlers().SetHandler(ReplyKind::VDConfig,
                                [this](const Reply& reply) { vdTab_->ShowVDConfigReply(reply); });
    link_.Handlers().SetHandler(ReplyKind::KBConfig,
                                [this](const Reply& reply) { kbTab_->ShowKBConfigReply(reply); });
    link_.Handlers().SetHandler(ReplyKind::Overcurrent, [this](const Reply& reply) {
        LogWindow& log = dlgAlarmLog_.Get();
        log.Append(ToQString(AlarmLine(ReadOvercurrentReport(reply))));
        // In view at once, but the keyboard stays with the control that drives a train.
        log.BringIntoView(false);
    });
    link_.Handlers().SetHandler(ReplyKind::BlockSpeed, [this](const Reply& reply) {
        testTab_->ShowBlockSpeed(ReadBlockSpeedReport(reply));
    });
    // A report loads the monitor without showing it; a tick asks it only when it is loaded.
    link_.Handlers().SetHandler(ReplyKind::Feedback, [this](const Reply& reply) {
        dlgZelvarFeedback_.Get().Show(ReadFeedbackReport(reply));
    });
    poller_.SetFeedbackQuery([this] {
        DlgZelvarFeedback* monitor = dlgZelvarFeedback_.Peek();
        return monitor == nullptr ? kNoFeedbackWanted : monitor->fbRequestState();
    });
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    if (NestedLoop::IsTurning()) {
        // The program ends inside a handler, which must send and show nothing more.
        platform_.port.Close();
    }
    Form_Unload();
}

void MainWindow::Form_Load() {
    ScanPorts();
    vdTab_->Fill({});
    jsTab_->Fill({});
}

void MainWindow::Form_Unload() {
    dlgMsgLog_.Unload();
    dlgAlarmLog_.Unload();
    dlgZelvarStatus_.Unload();
    dlgZelvarStatus44_.Unload();
    dlgZelvarFeedback_.Unload();
}

void MainWindow::ScanPorts() {
    portBar_->ShowPorts(FindUsablePorts(platform_.port, baudRate_));
    portBar_->DescribePorts(platform_.devicePath);
    // Asking the computer for its adapters takes longer than showing the window.
    QTimer::singleShot(kDescribeDelay, this,
                       [this] { portBar_->DescribePorts(platform_.describePort); });
}

bool MainWindow::OpenPort() {
    if (platform_.port.Open(portNumber_, baudRate_)) {
        ShowOpenDevice();
        return true;
    }
    statusBar_->ShowDevice(QStringLiteral("No port open"));
    platform_.messageBox.Tell(std::string(kOpenFailedText), BoxIcon::Exclamation);
    return false;
}

void MainWindow::ShowOpenDevice() {
    statusBar_->ShowDevice(QStringLiteral("Port %1: %2, %3")
                               .arg(portNumber_)
                               .arg(platform_.devicePath(portNumber_), portBar_->Rate()));
}

void MainWindow::cboPort_Click() {
    if (platform_.port.IsOpen()) {
        platform_.port.Close();
        platform_.pollTimer.SetEnabled(false);
        ShowSystemState(SystemState::Disconnected);
    }
    const int number = portBar_->PortNumber();
    if (number > 0) {
        portNumber_ = number;
        OpenPort();
    }
}

void MainWindow::cmdRefresh_Click() {
    platform_.port.Close();
    statusBar_->ShowDevice(QStringLiteral("No port open"));
    ScanPorts();
    // The poll timer keeps its state: its next tick finds the port closed.
    ShowSystemState(SystemState::Disconnected);
}

void MainWindow::cmdReset_Click() {
    if (link_.CheckPort()) {
        link_.Transact(kResetFault);
    }
}

void MainWindow::optBaud_Click(int index) {
    const bool wasOpen = platform_.port.IsOpen();
    const bool wasPolling = platform_.pollTimer.IsEnabled();
    platform_.port.Close();
    platform_.pollTimer.SetEnabled(false);
    baudRate_ = kBaudRates[index == 0 ? 0 : 1];
    if (wasOpen && !OpenPort()) {
        ShowSystemState(SystemState::Disconnected);
        return;
    }
    platform_.pollTimer.SetEnabled(wasPolling);
}

void MainWindow::lblCom_DblClick() {
    dlgMsgLog_.Get().BringIntoView(true);
    portBar_->ShowRates();
}

void MainWindow::cmdStatus_MouseDown(bool classic) {
    if (!link_.CheckPort()) {
        return;
    }
    const std::optional<SystemStatus> status =
        StatusRequest(link_, *statusBar_, platform_.clock, registry_, *this).Run(classic);
    if (!status) {
        return;
    }
    if (status->classic) {
        dlgZelvarStatus_.Get().BringIntoView(true);
    } else {
        dlgZelvarStatus44_.Get().BringIntoView(true);
    }
}

void MainWindow::ShowStatus(const SystemStatus& status) {
    if (status.classic) {
        dlgZelvarStatus_.Get().Show(status);
    } else {
        dlgZelvarStatus44_.Get().Show(status);
    }
}

void MainWindow::ShowCentralUnit(const CentralUnit& unit) {
    kbTab_->ShowUnit(unit);
}

void MainWindow::ListTractionModules(bool classic) {
    vdTab_->Fill(TractionModuleList(registry_, classic));
}

void MainWindow::ListPointMotorModules(bool classic) {
    jsTab_->Fill(PointMotorModuleList(registry_, classic));
}

void MainWindow::PortLost() {
    platform_.pollTimer.SetEnabled(false);
    ShowSystemState(SystemState::Disconnected);
    statusBar_->ShowDevice(QStringLiteral("Connection to port %1 lost").arg(portNumber_));
}

bool MainWindow::IsStopTicked() const {
    return portBar_->IsStopTicked();
}

void MainWindow::ShowSystemState(SystemState state) {
    // Every poll calls this, and mostly nothing has changed.
    if (state == shownState_) {
        return;
    }
    shownState_ = state;
    testTab_->ShowSystemState(state);
    statusBar_->ShowSystemState(state);
}

void MainWindow::FrameSent(const FrameBytes& frame) {
    AppendMessageLog(LogFrameSent(frame));
}

void MainWindow::ReplyReceived(const FrameBytes& frame, const Reply& reply) {
    AppendMessageLog(LogReplyReceived(frame, reply));
}

void MainWindow::NoReply() {
    AppendMessageLog(LogNoReply());
}

void MainWindow::AppendMessageLog(const std::string& text) {
    if (!text.empty()) {
        dlgMsgLog_.Get().Append(ToQString(text));
    }
}

}  // namespace zelvar
