// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/accessories/accessory_groups.h"

#include <QCheckBox>
#include <QGridLayout>

#include <functional>
#include <utility>

#include "controls/naming.h"
#include "protocol/accessories.h"
#include "protocol/blocks.h"

namespace zelvar {

namespace {

constexpr int kLastSignalModule = 31;
constexpr int kLastSignalPin = 127;
constexpr int kLastAspect = 11;
constexpr int kLastInstruction = 63;
constexpr int kLastOutput = 511;
constexpr int kLastParameter = 127;
constexpr int kLastBlock = 255;

/// One of the two blocks of a link.
CommandField BlockField(int index) {
    return {IndexedName("lblTestLink", index),
            QStringLiteral("Block"),
            IndexedName("UpDownTestLink", index),
            IndexedName("txtTestLink", index),
            index == 0 ? QStringLiteral("First block") : QStringLiteral("Second block"),
            kLastBlock};
}

}  // namespace

CommandGroup* MakeSignalGroup(Link& link, QWidget* parent) {
    auto* group = new CommandGroup(QStringLiteral("Signals (YR70)"), link, parent);
    const CommandGroup::Field module = group->AddField(
        {IndexedName("lblTestYR70", 0), QStringLiteral("YR70 Module"),
         QStringLiteral("UpDownTestYR70module"), QStringLiteral("txtTestYR70module"),
         QStringLiteral("YR70 module"), kLastSignalModule});
    const CommandGroup::Field pin = group->AddField(
        {IndexedName("lblTestYR70", 1), QStringLiteral("Pin"), QStringLiteral("UpDownTestYR70pin"),
         QStringLiteral("txtTestYR70pin"), QStringLiteral("Pin of the YR70"), kLastSignalPin});
    const CommandGroup::Field aspect = group->AddField(
        {IndexedName("lblTestYR70", 2), QStringLiteral("Aspect"),
         QStringLiteral("UpDownTestYR70aspect"), QStringLiteral("txtTestYR70aspect"),
         QStringLiteral("Signal aspect"), kLastAspect});
    group->AddButton(QStringLiteral("cmdTestYR70"), QStringLiteral("Set Aspect"),
                     QStringLiteral("Set the signal aspect"), [=] {
                         return SetSignalAspect(module.field->value(), pin.field->value(),
                                                aspect.field->value());
                     });
    group->LayOutInColumns();
    return group;
}

CommandGroup* MakeOutputGroup(Link& link, QWidget* parent) {
    auto* group = new CommandGroup(QStringLiteral("Outputs (GW70)"), link, parent);
    const CommandGroup::Field instruction = group->AddField(
        {IndexedName("lblTestGW70", 0), QStringLiteral("GW70 Instruction"),
         QStringLiteral("UpDownTestGW70instruction"), QStringLiteral("txtTestGW70instruction"),
         QStringLiteral("GW70 instruction"), kLastInstruction});
    const CommandGroup::Field output = group->AddField(
        {IndexedName("lblTestGW70", 1), QStringLiteral("Output"),
         QStringLiteral("UpDownTestGW70output"), QStringLiteral("txtTestGW70output"),
         QStringLiteral("Output of the GW70"), kLastOutput});
    const CommandGroup::Field parameter = group->AddField(
        {IndexedName("lblTestGW70", 2), QStringLiteral("Param"),
         QStringLiteral("UpDownTestGW70parameter"), QStringLiteral("txtTestGW70parameter"),
         QStringLiteral("Parameter of the GW70 instruction"), kLastParameter});
    group->AddButton(QStringLiteral("cmdTestGW70"), QStringLiteral("Set GW70"),
                     QStringLiteral("Give the instruction to the GW70"), [=] {
                         return SetOutput(output.field->value(), instruction.field->value(),
                                          parameter.field->value());
                     });
    group->LayOutInColumns();
    return group;
}

CommandGroup* MakeBlockLinkGroup(Link& link, QWidget* parent) {
    auto* group = new CommandGroup(QStringLiteral("Block links"), link, parent);
    const CommandGroup::Field first = group->AddField(BlockField(0));
    const CommandGroup::Field second = group->AddField(BlockField(1));
    auto* clear = Named(new QCheckBox(QStringLiteral("Clear unlinked blocks"), group),
                        "chkTestUnlinkZero", "Clear unlinked blocks");
    const auto add = [group](int index, const QString& caption, std::function<Command()> command) {
        return group->AddButton(IndexedName("CommandTestLink", index), caption, caption,
                                std::move(command));
    };
    const auto linkBlocks = [=](BlockPolarity polarity) {
        return [=] { return LinkBlocks(first.field->value(), second.field->value(), polarity); };
    };
    const auto unlink = [=](UnlinkDirection direction) {
        return [=] { return UnlinkBlocks(first.field->value(), direction, clear->isChecked()); };
    };
    auto* layout = new QGridLayout(group);
    layout->addWidget(first.label, 0, 0);
    layout->addWidget(first.field, 0, 1);
    layout->addWidget(second.label, 1, 0);
    layout->addWidget(second.field, 1, 1);
    layout->addWidget(add(0, QStringLiteral("Link Blocks"), linkBlocks(BlockPolarity::Same)), 0, 3);
    layout->addWidget(add(1, QStringLiteral("Link Inverted"), linkBlocks(BlockPolarity::Inverted)),
                      1, 3);
    layout->addWidget(add(2, QStringLiteral("Unlink Down"), unlink(UnlinkDirection::Down)), 0, 4);
    layout->addWidget(add(3, QStringLiteral("Unlink Up"), unlink(UnlinkDirection::Up)), 1, 4);
    layout->addWidget(clear, 2, 0, 1, 5, Qt::AlignRight);
    layout->setColumnStretch(2, 1);
    return group;
}

}  // namespace zelvar
