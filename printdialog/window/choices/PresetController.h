// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ArrangementStyle.h"

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>
#include <optional>

class QAction;

namespace printdialog {

class ArrangementModel;
class ChoiceSteps;
class DialogSession;
class IppAttributes;
class MessageBar;
class PresetBar;
class PresetStore;
struct UsedChoices;

/// Loads choices, and how photos are arranged, from a printer's presets and from the last time, and saves
/// them there.
class PresetController : public QObject
{
    Q_OBJECT

public:
    PresetController(PresetBar *bar, MessageBar *message, ChoiceSteps *steps, ArrangementModel *photos,
                     QObject *parent);
    ~PresetController() override;

    /// Makes the choices of the preset that the printer's id names, or else those last used with the
    /// printer, and its defaults for the other options.
    /// The session must outlive this object or the next call; null: none.
    /// @param builtInPreset the built-in printer's preset, which its id does not name
    void setSession(DialogSession *session, const QString &builtInPreset);
    /// See ChoiceController::useAttributes.
    bool useAttributes(const IppAttributes &attributes, bool opensAnew);
    /// Call when a step was made or undone.
    void update();

    /// Saves the choices for the next time with this printer, but not for how long the job is held. Returns a
    /// sentence when that fails.
    QString keep(const QMap<QString, QString> &options);
    /// See ChoiceController::keepOnlyOptions.
    void keepOnlyOptions() { keepsOnlyOptions_ = true; }

Q_SIGNALS:
    /// The user has selected a preset.
    void aboutToUse();
    /// The choices to be saved conflict.
    void jobRefused();

private:
    void makeActions();
    void load();
    void open();
    QMap<QString, QString> openingChoices() const;
    bool openWith(const QString &instance);
    void openWithLastChoices();
    void use(const QString &name);
    QStringList restore(const QString &name);
    QStringList take(const UsedChoices &used, const QString &name);
    void add(const QString &typed);
    void replace(const QString &name);
    void rename(const QString &name, const QString &typed);
    void remove(const QString &name);
    std::optional<QMap<QString, QString>> kept();
    QMap<QString, QString> withoutDefaults(QMap<QString, QString> choices) const;
    QMap<QString, QString> withCopies(QMap<QString, QString> options) const;
    void mark(const QString &name);
    bool differsFromPreset() const;
    void sayLeftOut(const QStringList &lines);
    static QStringList leftOutLines(const QString &introduction, const QStringList &sentences);
    static QStringList leftOutOfDefaults(const QStringList &sentences);

    PresetBar *bar_;
    MessageBar *message_;
    ChoiceSteps *steps_;
    ArrangementModel *photos_;
    std::optional<ArrangementStyle> markedStyle_; ///< of the preset in use; nothing when it has none
    QAction *revert_ = nullptr;
    DialogSession *session_ = nullptr;
    std::unique_ptr<PresetStore> store_;
    bool keepsOnlyOptions_ = false;
    QString preset_; ///< the one to open with; empty: none
};

} // namespace printdialog
