// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QGenericPlugin>

#include "probe.h"

namespace zelvar::e2e {

/// Puts the probe into an unmodified program whose environment names it.
class ProbePlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "zelvarprobe.json")

  public:
    QObject* create(const QString&, const QString&) override { return new Probe; }
};

}  // namespace zelvar::e2e

#include "plugin.moc"
