// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChoiceMarker.h"
#include "PrinterDescription.h"
#include "SessionTicket.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <optional>

class QWidget;

namespace printdialog {

/// One option whose choice has changed.
struct ChoiceChange
{
    QString key;
    std::optional<QString> before; ///< nothing: none was marked, as for an option without a usable default
    std::optional<QString> after;
    bool isAsked = true; ///< false: another option's choice has changed this one (PageRegion by PageSize)
};

/// What is chosen for the next job of one session: the choice of each of the PPD's options. Everything that
/// shows, keeps, undoes or prints choices reads them here, and hears of each change.
///
/// In constraint mode the choices are the PPD's marks, and each is ruled on before it is made. In settings
/// mode they are those of the job ticket, which panels write when they are saved (adopt()), over the PPD's
/// marks; what goes together is weighed when the job is made (markTicket()).
///
/// A choice costs the same however many options there are. Borrows the document, which must outlive it and
/// not be moved meanwhile. Main thread only.
class ChosenOptions : public QObject
{
    Q_OBJECT

public:
    ChosenOptions(PpdDocument &ppd, PanelMode mode);

    /// Option keyword to choice keyword, both in the PPD's spelling, of every option that has a choice. While
    /// a number is being typed, the choice before it counts.
    const QMap<QString, QString> &choices() const { return choices_; }
    /// What is recorded in the ticket, as it stands there, or else the PPD's mark.
    std::optional<QString> choice(const QString &key) const;
    /// The options that were chosen, by whoever it was, the last one first.
    QStringList chosenKeys() const;
    /// For the panels of settings mode. What they write counts once it is adopted.
    SessionTicket &ticket() { return ticket_; }

    /// What choose() would say. Changes nothing.
    Ruling weigh(const QString &key, const QString &choice) const;
    /// Makes a choice unless it is refused, in the ruling's spelling. A refusal leaves everything as it was,
    /// and is announced with the control that the user acted on; null for a program's choice.
    Ruling choose(const QString &key, const QString &choice, QWidget *sender = nullptr);
    /// Makes choices of the PPD, whatever stands between them. What is no choice of the PPD is passed over.
    /// Answers the options whose choice has changed.
    QStringList chooseTogether(const QMap<QString, QString> &choices);
    /// Takes note of what a panel has saved for these options in the ticket.
    void adopt(const QStringList &keys);
    /// Nobody counts as having chosen these options any more: their panel is lost. Their choices stay.
    void forget(const QStringList &keys);

    /// See ChoiceMarker::plan: what of the wanted choices goes together, and with the others.
    ChoicePlan plan(const QMap<QString, QString> &wanted, const QMap<QString, QString> &base) const;
    /// See ChoiceMarker::changesThatAllow.
    QList<OptionChoice> changesThatAllow(const Ruling &refusal) const;

    /// Marks the ticket's choices in the PPD. What is no choice of the PPD is replaced by the option's
    /// default, in the ticket as well; answers a ruling for each.
    QList<Ruling> markTicket();
    /// Two choices that may not be together; the ruling's key is the one of them that was chosen last.
    std::optional<Ruling> firstConflict() const { return marker_.firstConflict(chosenKeys()); }

Q_SIGNALS:
    void changed(const printdialog::ChoiceChange &change);
    void refused(const printdialog::Ruling &ruling, QWidget *sender);

private:
    void noteChosen(const QString &key);
    void update(const QString &key, bool isAsked);
    void updateCoupled(const QString &key);
    std::optional<QString> canonical(const QString &key) const;

    PpdDocument &ppd_;
    PanelMode mode_;
    ChoiceMarker marker_;
    SessionTicket ticket_;
    QMap<QString, QString>
        choices_; // the PPD's marks and the ticket's choices, as they are known to everyone
    QHash<QString, quint64> chosenAt_;
    quint64 acts_ = 0;
};

} // namespace printdialog
