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
    std::optional<QString>
        before; ///< nothing when none was marked, as for an option without a usable default
    std::optional<QString> after;
};

/// The choices for the next job of one session, one for each of the printer's options. All code that shows,
/// stores, undoes or prints choices reads them here and is notified of each change.
///
/// In constraint mode, the choices are the source's marks, and each one is checked before it is made. In
/// settings mode, they are those of the job ticket, which panels write when they are saved (adopt()), and
/// else the source's marks; conflicts are checked when the job is made (markTicket()).
///
/// The cost of a choice does not depend on the number of options. Borrows the options' source, which must
/// outlive it and must not be moved. Main thread only.
class ChosenOptions : public QObject
{
    Q_OBJECT

public:
    ChosenOptions(OptionSource &source, PanelMode mode);

    /// Option keyword to choice keyword, both in the PPD's spelling, of every option that has a choice. While
    /// a number is being typed, the previous choice remains.
    const QMap<QString, QString> &choices() const { return choices_; }
    /// The choice recorded in the ticket, exactly as written there, or else the PPD's mark.
    std::optional<QString> choice(const QString &key) const;
    /// The options that were chosen, by the user or a program, latest first.
    QStringList chosenKeys() const;
    /// For the panels in settings mode. What they write takes effect with adopt().
    SessionTicket &ticket() { return ticket_; }

    /// The ruling that choose() would return. Changes nothing.
    Ruling weigh(const QString &key, const QString &choice) const;
    /// Makes a choice, in the ruling's spelling, unless it is refused. A refusal changes nothing and is
    /// signalled together with `sender`, the control that the user acted on; null for a program's choice.
    Ruling choose(const QString &key, const QString &choice, QWidget *sender = nullptr);
    /// Makes choices even if they conflict. Skips those that the printer does not have.
    void chooseTogether(const QMap<QString, QString> &choices);
    /// Adopts what a panel has saved for these options in the ticket.
    void adopt(const QStringList &keys);
    /// Counts these options as chosen, whether their choices have changed or not: they are printed with even
    /// if the print server has another default.
    void keep(const QStringList &keys);
    /// Notes options that the source has only now, without a signal.
    void include(const QStringList &keys);
    /// Drops these options from chosenKeys(), since their panel is lost. Their choices stay.
    void forget(const QStringList &keys);

    /// See ChoiceMarker::plan: the wanted choices that are allowed together and with `base`.
    ChoicePlan plan(const QMap<QString, QString> &wanted, const QMap<QString, QString> &base) const;
    /// See ChoiceMarker::changesThatAllow.
    QList<OptionChoice> changesThatAllow(const Ruling &refusal) const;

    /// See ChoiceMarker::equipmentAgainst.
    QList<OptionChoice> equipmentAgainst(const QString &key, const QString &choice) const
    {
        return marker_.equipmentAgainst(key, choice);
    }

    /// Marks the ticket's choices. A choice that the printer does not have is replaced by the option's
    /// default, in the ticket as well. Returns a ruling for each replaced choice.
    QList<Ruling> markTicket();
    /// Two choices that conflict; the ruling's key is the option that was chosen later.
    std::optional<Ruling> firstConflict() const { return marker_.firstConflict(chosenKeys()); }

Q_SIGNALS:
    void changed(const printdialog::ChoiceChange &change);
    void refused(const printdialog::Ruling &ruling, QWidget *sender);

private:
    void noteChosen(const QString &key);
    void update(const QString &key);
    void updateCoupled(const QString &key);
    std::optional<QString> canonical(const QString &key) const;

    OptionSource &source_;
    PanelMode mode_;
    ChoiceMarker marker_;
    SessionTicket ticket_;
    QMap<QString, QString> choices_; // the source's marks and the ticket's choices, as last signalled
    QHash<QString, quint64> chosenAt_;
    quint64 acts_ = 0;
};

} // namespace printdialog
