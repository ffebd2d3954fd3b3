// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <QTabWidget>

#include "app/port_bar.h"
#include "app/status_bar.h"
#include "config/js_tab.h"
#include "config/kb_tab.h"
#include "config/vd_tab.h"
#include "controls/secondary_window.h"
#include "link/link.h"
#include "link/poller.h"
#include "link/services.h"
#include "logs/log_window.h"
#include "platform/clock.h"
#include "platform/message_box.h"
#include "platform/serial_port.h"
#include "platform/timer.h"
#include "status/dlg_zelvar_status.h"
#include "status/dlg_zelvar_status44.h"
#include "status/module_registry.h"
#include "status/status_request.h"
#include "test/feedback/dlg_zelvar_feedback.h"
#include "test/test_tab.h"

namespace zelvar {

/// What the main window runs on. All of it must outlive the window.
struct Platform {
    SerialPort& port;
    Timer& pollTimer;
    const Clock& clock;
    MessageBox& messageBox;
    /// The device path behind a port number.
    PortBar::DescribePort devicePath;
    /// The path and, when the computer knows one, the adapter's description. May take a while.
    PortBar::DescribePort describePort;
};

/// By the index of `optBaud`.
inline constexpr int kBaudRates[] = {19200, 38400};

/// The main window `frmZelvarConfig`: it puts the rooms together and owns the serial connection.
class MainWindow : public QMainWindow, private LinkView, private StatusRequestView {
    Q_OBJECT

  public:
    explicit MainWindow(const Platform& platform);
    ~MainWindow() override;

    /// The tick of the poll timer.
    void Timer1_Timer() { poller_.Timer1_Timer(); }

    StatusBar& Bar() { return *statusBar_; }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void BuildFrame();
    void ConnectControls();
    void ConnectReplies();
    void Form_Load();
    void Form_Unload();
    void ScanPorts();
    void cboPort_Click();
    void cmdRefresh_Click();
    void cmdReset_Click();
    void cmdStatus_MouseDown(bool classic);
    void optBaud_Click(int index);
    void lblCom_DblClick();
    void PortLost();
    void ShowOpenDevice();
    bool OpenPort();

    bool IsStopTicked() const override;
    void ShowSystemState(SystemState state) override;
    void FrameSent(const FrameBytes& frame) override;
    void ReplyReceived(const FrameBytes& frame, const Reply& reply) override;
    void NoReply() override;
    void AppendMessageLog(const std::string& text);

    void ShowStatus(const SystemStatus& status) override;
    void ShowCentralUnit(const CentralUnit& unit) override;
    void ListTractionModules(bool classic) override;
    void ListPointMotorModules(bool classic) override;

    Platform platform_;
    Link link_;
    Poller poller_;
    ModuleRegistry registry_;
    /// The number last chosen in `cboPort`.
    int portNumber_ = 0;
    int baudRate_ = kBaudRates[0];
    SystemState shownState_ = SystemState::Disconnected;

    StatusBar* statusBar_;
    Services services_;
    PortBar* portBar_;
    QTabWidget* tabs_;
    VDTab* vdTab_;
    JSTab* jsTab_;
    KBTab* kbTab_;
    TestTab* testTab_;

    LazyWindow<LogWindow> dlgMsgLog_;
    LazyWindow<LogWindow> dlgAlarmLog_;
    LazyWindow<DlgZelvarStatus> dlgZelvarStatus_;
    LazyWindow<DlgZelvarStatus44> dlgZelvarStatus44_;
    LazyWindow<DlgZelvarFeedback> dlgZelvarFeedback_;
};

}  // namespace zelvar
