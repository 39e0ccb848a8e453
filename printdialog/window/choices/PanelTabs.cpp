// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PanelTabs.h"

#include "DialogSession.h"
#include "GuardedPanel.h"
#include "Mnemonics.h"
#include "SummaryPage.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QVBoxLayout>

namespace printdialog {

namespace {

constexpr int pageMargin = 8;
constexpr int handPlacedMargin = 17; // pixels, about the margin that a view with a layout has in the page

/// The view's widgets that accept the keyboard focus, in the form's order.
QList<QWidget *> focusChain(QWidget *view)
{
    QList<QWidget *> chain;
    for (QWidget *widget = view->nextInFocusChain(); widget != view; widget = widget->nextInFocusChain()) {
        if (view->isAncestorOf(widget) && widget->focusPolicy() != Qt::NoFocus)
            chain.append(widget);
    }
    return chain;
}

} // namespace

PanelTabs::PanelTabs(QWidget *parent)
    : QTabWidget(parent)
    , summary_(new SummaryPage(this))
{
    summary_->hide();
    connect(this, &QTabWidget::currentChanged, this, &PanelTabs::showPage);
    // The arrow keys turn pages; the buttons that scroll the tabs are for the mouse.
    const auto scrollButtons = tabBar()->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : scrollButtons)
        button->setFocusPolicy(Qt::NoFocus);
}

void PanelTabs::setSession(DialogSession *session)
{
    session_ = session;
    shown_ = -1;
    makePages();
    if (!session)
        return;
    connect(session, &DialogSession::pageAdded, this, [this](qsizetype index) {
        addPage(*session_->panels().at(static_cast<std::size_t>(index)), index);
        markTabs();
    });
    showPage(currentIndex());
}

void PanelTabs::makePages()
{
    const QSignalBlocker blocker(this); // no page is shown before all are added
    clear();
    for (const Page &page : std::as_const(pages_))
        delete page.holder;
    pages_.clear();
    panelOf_.clear();
    if (!session_)
        return;
    for (const auto &panel : session_->panels())
        addPage(*panel, pages_.size());
    addTab(summary_, tr("Summary"));
    markTabs();
    setCurrentIndex(0);
}

void PanelTabs::addPage(GuardedPanel &panel, qsizetype index)
{
    auto *holder = new QWidget;
    auto *layout = new QVBoxLayout(holder);
    layout->setContentsMargins(pageMargin, pageMargin, pageMargin, pageMargin);
    // A tab's text is read like a button's, so an ampersand in a name is escaped.
    const QString name = panel.name().isEmpty() ? tr("Options") : panel.name();
    pages_.insert(index, {&panel, holder});
    if (index <= shown_)
        ++shown_;
    insertTab(static_cast<int>(index), holder, QString(name).replace(u'&', QStringLiteral("&&")));
    panelOf_.insert(holder, &panel);
    // Queued: the current event may be one of the view's.
    connect(
        &panel, &GuardedPanel::lost, holder, [this, lost = &panel] { closePage(lost); },
        Qt::QueuedConnection);
}

void PanelTabs::markTabs()
{
    Mnemonics letters;
    letters.reserve(reserved_);
    letters.reserveAllIn(*window(), this);
    // The dialog's own pages leave the letters to the plug-in's controls.
    QList<int> marked;
    QStringList names;
    for (int i = 0; i < count(); ++i) {
        if (panelOn(i) && session_->isOwnPage(*panelOn(i)))
            continue;
        marked.append(i);
        names.append(tabText(i));
    }
    names = letters.mark(names);
    for (qsizetype i = 0; i < names.size(); ++i)
        setTabText(marked.at(i), names.at(i));
}

void PanelTabs::markView(QWidget &view)
{
    Mnemonics letters;
    letters.reserve(reserved_);
    letters.reserveAllIn(*window(), this);
    for (int i = 0; i < count(); ++i)
        letters.reserve({tabText(i)});
    letters.markAllIn(view);
}

void PanelTabs::turnPages(int pages)
{
    if (count() > 0)
        setCurrentIndex((currentIndex() + pages + count()) % count());
}

GuardedPanel *PanelTabs::panelOn(int page) const
{
    return page >= 0 && page < pages_.size() ? pages_.at(page).panel : nullptr;
}

GuardedPanel *PanelTabs::panelOf(const QWidget *control) const
{
    while (control && !panelOf_.contains(control))
        control = control->parentWidget();
    return panelOf_.value(control);
}

QString PanelTabs::whyPageStays() const
{
    GuardedPanel *panel = panelOn(shown_);
    if (!panel || panel->shouldHide())
        return {};
    return tr("The page \"%1\" cannot be left yet. Finish what it asks for.").arg(panel->name());
}

QString PanelTabs::kindSuffix(int page) const
{
    if (page < 0 || page >= pages_.size())
        return {};
    return pages_.at(page).panel->kind().section(QLatin1Char('.'), -1);
}

QSize PanelTabs::sizeHint() const
{
    // High enough for the pages of most printers, so that the window need not grow when their options arrive.
    constexpr int usualLines = 17;
    return QTabWidget::sizeHint().expandedTo(
        {tabBar()->sizeHint().width(), usualLines * fontMetrics().lineSpacing()});
}

void PanelTabs::showPage(int index)
{
    if (!session_)
        return;
    if (index != shown_) {
        if (const QString reason = whyPageStays(); !reason.isEmpty()) {
            {
                const QSignalBlocker blocker(this);
                setCurrentIndex(shown_);
            }
            Q_EMIT pageStayed(reason);
            return;
        }
        shown_ = index;
    }
    if (index >= 0 && index < pages_.size())
        fillPage(pages_[index]);
    else
        updateSummary();
}

void PanelTabs::updateSummary()
{
    if (session_ && entries_ && currentWidget() == summary_)
        summary_->setEntries(entries_());
}

// willShow() is called once per opening of the dialog: a panel that moves its controls does so at each call.
void PanelTabs::fillPage(Page &page)
{
    if (page.wasShown)
        return;
    page.wasShown = true;
    if (QWidget *view = page.panel->view()) {
        const QList<QWidget *> order = focusChain(view);
        if (view->layout()) {
            page.holder->layout()->addWidget(view);
            page.panel->willShow();
        } else {
            // A panel that places its controls without a layout sets its own size.
            view->setParent(page.holder);
            page.panel->willShow();
            view->move(handPlacedMargin, handPlacedMargin);
            page.holder->setMinimumSize(view->size() + QSize(2 * handPlacedMargin, 2 * handPlacedMargin));
        }
        view->show();
        markView(*view);
        // A view that is loaded later would be last in the tab order; it belongs after the tabs.
        QWidget *previous = tabBar();
        for (QWidget *widget : order) {
            setTabOrder(previous, widget);
            previous = widget;
        }
        Q_EMIT viewMade(view);
        session_->noteShown(*page.panel); // may add a page: the last use of this one
        return;
    }
    if (page.panel->isLost()) {
        showNote(page, page.panel->loss());
        return;
    }
    const QString text =
        tr("The panel \"%1\" cannot be shown: its form is missing from the plug-in bundle or damaged. "
           "Install the bundle again. Everything else works.")
            .arg(page.panel->name());
    showNote(page, text);
    Q_EMIT panelFailed(text);
}

/// The view stays, hidden, until the session ends: its code may be running.
void PanelTabs::closePage(const GuardedPanel *panel)
{
    for (Page &page : pages_) {
        if (page.panel != panel)
            continue;
        const auto views = page.holder->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
        for (QWidget *view : views)
            view->hide();
        page.wasShown = true;
        showNote(page, panel->loss());
    }
    updateSummary();
}

void PanelTabs::showNote(Page &page, const QString &text)
{
    delete page.note;
    page.note = new QLabel(text, page.holder);
    page.note->setTextFormat(Qt::PlainText);
    page.note->setWordWrap(true);
    page.note->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    page.holder->layout()->addWidget(page.note);
}

} // namespace printdialog
