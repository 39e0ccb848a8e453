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
/// loaded when its page is first shown. Tabs and views get Alt letters that nothing else in the window uses,
/// as far as letters are left, whatever the plug-in and the language.
class PanelTabs : public QTabWidget
{
    Q_OBJECT

public:
    explicit PanelTabs(QWidget *parent = nullptr);

    /// Sets the function that returns the summary's entries; it is called each time they are shown.
    void setSummary(const std::function<SummaryEntries()> &summary) { entries_ = summary; }
    /// Reserves the Alt letters that these texts mark, for widgets that may appear later.
    void setReservedKeys(const QStringList &texts) { reserved_ = texts; }

    /// Shows the session, which must outlive this object or the next call; null shows nothing.
    void setSession(DialogSession *session);
    /// Why the current page's panel does not let it be left: a sentence for people. Empty: it may be left.
    QString whyPageStays() const;
    /// Call when something that the summary shows may have changed.
    void updateSummary();
    /// The panel whose page is shown; null for the summary.
    GuardedPanel *currentPanel() const { return panelOn(currentIndex()); }
    /// The panel in whose view the control stands; null for any other.
    GuardedPanel *panelOf(const QWidget *control) const;
    /// The last component of the kind of the panel on the page, such as "coloradjust"; empty for the summary.
    QString kindSuffix(int page) const;

    /// Moves on by that many pages, wrapping around at either end.
    void turnPages(int pages);

    /// Leaves room for every tab; in a narrower window the tabs scroll.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// A panel's view is about to be shown for the first time.
    void viewMade(QWidget *view);
    /// The user has turned to another page, but the current one stays; the text is whyPageStays().
    void pageStayed(const QString &text);
    /// A panel's view cannot be shown: one sentence for people.
    void panelFailed(const QString &text);

private:
    struct Page
    {
        GuardedPanel *panel;
        QWidget *holder;
        bool wasShown = false;
        QLabel *note = nullptr; ///< shown in place of a view
    };

    GuardedPanel *panelOn(int page) const;
    void makePages();
    void addPage(GuardedPanel &panel, qsizetype index);
    void markTabs();
    void markView(QWidget &view);
    void showPage(int page);
    void fillPage(Page &page);
    void closePage(const GuardedPanel *panel);
    static void showNote(Page &page, const QString &text);

    DialogSession *session_ = nullptr;
    QList<Page> pages_;
    QHash<const QWidget *, GuardedPanel *> panelOf_; ///< by the widget that holds its view
    int shown_ = -1; ///< the page that is shown, or the last one that could be left
    QStringList reserved_;
    SummaryPage *summary_;
    std::function<SummaryEntries()> entries_;
};

} // namespace printdialog
