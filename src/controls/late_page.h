// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTabWidget>
#include <QVBoxLayout>

#include <functional>
#include <utility>

namespace zelvar {

/// A page of a tab control whose contents are made when somebody needs them first.
template <typename Contents>
class LatePage {
  public:
    /// Makes the contents as a child of the page.
    using Make = std::function<Contents*(QWidget* page)>;

    LatePage(QTabWidget* tabs, const QString& caption, Make make)
        : page_(new QWidget(tabs)), make_(std::move(make)) {
        auto* layout = new QVBoxLayout(page_);
        layout->setContentsMargins(0, 0, 0, 0);
        tabs->addTab(page_, caption);
    }

    Contents& Get() {
        if (contents_ == nullptr) {
            contents_ = make_(page_);
            page_->layout()->addWidget(contents_);
            if (page_->isVisible()) {
                // They would else appear with a later event only.
                contents_->show();
                page_->layout()->activate();
            }
        }
        return *contents_;
    }

  private:
    QWidget* page_;
    Make make_;
    Contents* contents_ = nullptr;
};

}  // namespace zelvar
