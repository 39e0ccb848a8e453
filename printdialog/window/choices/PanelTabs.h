// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "JobSummary.h"

#include <QtCore/QHash>
#include <QtWidgets/QTabWidget>

#include <functional>

class QLabel;

namespace printdialog {

class DialogSession;
class GuardedPanel;
class SummaryPage;

/// The pages of one session: a tab for each panel in the plug-in's order, and the summary. A panel's view is
/// loaded when its page is first shown. Tabs and views get letters for Alt that nothing else in the window
/// has, as far as there are any, whatever the plug-in and the language.
class PanelTabs : public QTabWidget
{
    Q_OBJECT

public:
    explicit PanelTabs(QWidget *parent = nullptr);

    /// What the summary shows, asked for whenever it does.
    void setSummary(const std::function<SummaryEntries()> &summary) { entries_ = summary; }
    /// Keeps the letters that these texts mark for what may appear in the window.
    void setReservedKeys(const QStringList &texts) { reserved_ = texts; }

    /// Shows the session, which must outlive this or the next call; null shows nothing.
    void setSession(DialogSession *session);
    /// Why the page that is shown must stay, by its panel's word: a sentence for people. Empty: it may be
    /// left.
    QString whyPageStays() const;
    /// Something that the summary shows may have changed.
    void updateSummary();
    /// The panel whose page is shown; null for the summary.
    GuardedPanel *currentPanel() const { return panelOn(currentIndex()); }
    /// The panel in whose view the control stands; null for any other.
    GuardedPanel *panelOf(const QWidget *control) const;
    /// The last component of the kind of the panel on the page, such as "coloradjust"; empty for the summary.
    QString kindSuffix(int page) const;

    /// Shows the page that many pages on, round from the last to the first.
    void turnPages(int pages);

    /// With room for every tab; where there is less, the tabs scroll.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// A panel's view is about to be seen for the first time.
    void viewMade(QWidget *view);
    /// The user has turned to another page, and the one before stays: whyPageStays().
    void pageStayed(const QString &text);
    /// A panel's view cannot be shown: one sentence for people.
    void panelFailed(const QString &text);

private:
    struct Page
    {
        GuardedPanel *panel;
        QWidget *holder;
        bool wasShown = false;
        QLabel *note = nullptr; ///< in the place of a view
    };

    GuardedPanel *panelOn(int page) const;
    void makePages();
    void markTabs();
    void markView(QWidget &view);
    void showPage(int page);
    void fillPage(Page &page);
    void closePage(const GuardedPanel *panel);
    static void showNote(Page &page, const QString &text);

    DialogSession *session_ = nullptr;
    QList<Page> pages_;
    QHash<const QWidget *, GuardedPanel *> panelOf_; ///< by what holds its view
    int shown_ = -1; ///< the page that was let go of last or is shown
    QStringList reserved_;
    SummaryPage *summary_;
    std::function<SummaryEntries()> entries_;
};

} // namespace printdialog
