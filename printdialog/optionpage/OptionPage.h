// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChoiceReceiver.h"
#include "CustomChoice.h"
#include "OptionSource.h"
#include "PrintDialogPanel.h"
#include "PrintDialogPlugin.h"

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QSet>

#include <functional>

namespace printdialog {

class OptionPageView;

/// The dialog's own page of options, made from the options' source: a panel like a plug-in's, so that its
/// choices take the same road.
///
/// Borrows the source. Main thread only; the view needs a QApplication.
class OptionPage : public QObject, public pdekit::PrintDialogPanel, public pdekit::ChoiceReceiver
{
    Q_OBJECT
    Q_INTERFACES(pdekit::PrintDialogPanel pdekit::ChoiceReceiver)

public:
    /// What the page asks of its session.
    struct Session
    {
        /// Offers a choice. True: it now applies to the job. Empty when the panels keep the choices and write
        /// them into the job's print settings.
        std::function<bool(const QString &key, const QString &choice)> rule;
        /// Why the printer's installed equipment rules out a choice; empty when it does not.
        std::function<QString(const QString &key, const QString &choice)> equipmentRefusal;
        /// Keeps the secret values of a custom choice for the job; none: forgets them.
        std::function<void(const QString &key, const CustomValues &values)> keepSecret;
    };

    /// @param kind the last component of the panel's kind
    OptionPage(const OptionSource &source, const pdekit::HostInfo &hostInfo, Session session,
               const QString &name, const QString &kind);
    ~OptionPage() override;

    /// The options that the page shows, in this order. Call it again when the choices of one are others.
    void setKeys(const QStringList &keys);
    /// Whether the options stand under the headings of their groups; otherwise in one list.
    void setGrouped(bool isGrouped) { isGrouped_ = isGrouped; }
    bool isGrouped() const { return isGrouped_; }
    /// The options that the last save has written: those that were changed since the one before.
    const QStringList &savedKeys() const { return saved_; }
    bool shows(const QString &key) const { return shown_.contains(key); }

    const OptionSource &source() const { return source_; }
    const Session &session() const { return session_; }
    /// The job's choice of an option, as far as the page knows it.
    std::optional<QString> choice(const QString &key) const;
    /// Handles the user's choice. If it is refused, beeps, and the control shows the previous choice.
    void choose(const QString &key, const QString &choice, QWidget *control);

    std::optional<QString> panelName() override;
    std::optional<QString> panelKind() const override;
    QWidget *panelView() override;
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    void willShow() override {}
    bool shouldHide() override { return true; }
    std::optional<Summary> summaryInfo() override;
    QStringList supportedPPDOptionKeys() override { return keys_; }
    void PPDOptionKeyValueDidChangePpdChoice(const std::optional<QString> &key,
                                             const std::optional<QString> &choice) override;
    bool shouldShowHelp() override { return true; }
    bool markChoiceForPPDOptionKeyFromSender(const std::optional<QString> &choice,
                                             const std::optional<QString> &key, QWidget *sender) override;

private:
    void set(const QString &key, const QString &choice);
    void show(const QString &key);

    const OptionSource &source_;
    pdekit::HostInfo hostInfo_;
    Session session_;
    QString name_;
    QString kind_;
    QStringList keys_;
    bool isGrouped_ = true;
    QSet<QString> shown_; // the same
    QStringList changed_; // options whose choice is not saved yet
    QStringList saved_;
    QMap<QString, QString> choices_; // option keyword to choice keyword
    QPointer<OptionPageView> view_;
};

} // namespace printdialog
