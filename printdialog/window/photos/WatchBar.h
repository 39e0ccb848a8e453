// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QWidget>

class QCheckBox;
class QLabel;

namespace printdialog {

class ElidingButton;

/// The switch for printing the photos that arrive in a folder, with the folder and the latest news of it.
class WatchBar : public QWidget
{
    Q_OBJECT

public:
    explicit WatchBar(QWidget *parent = nullptr);

    /// The folder that is offered while none was chosen and none is watched: that of the photo that is shown.
    void offer(const QString &folder);
    QString folder() const { return folder_; }
    /// Shows whether the folder is watched; no signal is emitted.
    void setWatching(bool isWatching);
    bool isWatching() const;
    /// A sentence; empty for none.
    void showNews(const QString &sentence);

Q_SIGNALS:
    /// The user has switched it on or off.
    void switched(bool isOn);

private:
    void browse();
    void setFolder(const QString &folder);

    QCheckBox *switch_;
    ElidingButton *choose_;
    QLabel *news_;
    QString folder_;
    bool isChosen_ = false; ///< by the user
};

} // namespace printdialog
