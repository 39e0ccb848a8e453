// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PreviewBar.h"

#include "PlainText.h"
#include "PreviewWidget.h"
#include "SheetBar.h"
#include "WrappingRow.h"

#include <QtCore/QEvent>
#include <QtCore/QLocale>
#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtGui/QResizeEvent>
#include <QtGui/QShortcut>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace printdialog {

namespace {

constexpr Qt::Key compareKey = Qt::Key_F9;

} // namespace

PreviewBar::PreviewBar(PreviewWidget *preview, QWidget *parent)
    : QWidget(parent)
    , preview_(preview)
    , smaller_(addButton("zoomOut", QStringLiteral("\u2212"), tr("Show the page smaller")))
    , zoom_(addButton("zoom", tr("Fit"), tr("How large the page is shown")))
    , larger_(addButton("zoomIn", QStringLiteral("+"), tr("Show the page larger")))
    , compare_(addButton("compare", tr("Compare"),
                         tr("Hold to see the photo without the printer's adjustments (%1)")
                             .arg(QKeySequence(compareKey).toString(QKeySequence::NativeText))))
    , divide_(addButton("divide", tr("Split"),
                        tr("Show the photo without the printer's adjustments left of a divider that can be "
                           "dragged")))
    , clipped_(addButton("clipped", {}, tr("Mark the tones that the adjustments clip to black or white")))
    , proof_(addButton("proof", tr("Soft proof"), tr("Show the colors as the printer's paper has them")))
    , ruler_(addButton("ruler", tr("Ruler"), tr("Measure the sheet along its edges")))
    , note_(new QLabel(this))
{
    smaller_->setAccessibleName(tr("Zoom out"));
    larger_->setAccessibleName(tr("Zoom in"));
    for (QToolButton *button : {divide_, clipped_, proof_, ruler_})
        button->setCheckable(true);
    note_->setObjectName(QStringLiteral("previewNote"));
    note_->setTextFormat(Qt::PlainText);
    note_->setWordWrap(true);
    note_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addZoomMenu();
    addKeys();

    auto *row = new WrappingRow;
    auto *zoom = new QHBoxLayout;
    zoom->setSpacing(0);
    for (QToolButton *button : {smaller_, zoom_, larger_})
        zoom->addWidget(button);
    row->addItem(zoom);
    row->addWidget(new SheetBar(preview_, this));
    row->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
    for (QToolButton *button : {compare_, divide_, clipped_, proof_, ruler_})
        row->addWidget(button);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(row);
    layout->addWidget(note_);

    connect(smaller_, &QToolButton::clicked, preview_, &PreviewWidget::zoomOut);
    connect(larger_, &QToolButton::clicked, preview_, &PreviewWidget::zoomIn);
    connect(compare_, &QToolButton::pressed, this, [this] { setCompared(true); });
    connect(compare_, &QToolButton::released, this, [this] { setCompared(false); });
    connect(divide_, &QToolButton::toggled, this, &PreviewBar::useSwitches);
    connect(clipped_, &QToolButton::toggled, this, [this] {
        useSwitches();
        showView();
    });
    connect(proof_, &QToolButton::toggled, this, &PreviewBar::proofingChanged);
    connect(ruler_, &QToolButton::toggled, preview_, &PreviewWidget::setRuled);
    connect(preview_, &PreviewWidget::viewChanged, this, &PreviewBar::showView);
    showAdjustable();
    setProofable(false);
    showView();
}

QToolButton *PreviewBar::addButton(const char *name, const QString &text, const QString &hint)
{
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setToolTip(hint);
    button->setAccessibleDescription(hint);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void PreviewBar::addZoomMenu()
{
    auto *menu = new QMenu(zoom_);
    connect(menu->addAction(tr("Fit")), &QAction::triggered, preview_,
            [this] { preview_->zoomTo(std::nullopt); });
    for (const double zoom : {PreviewWidget::dotForDot, PreviewWidget::mostZoom})
        connect(menu->addAction(tr("%1 %", "a zoom").arg(zoom * 100)), &QAction::triggered, preview_,
                [this, zoom] { preview_->zoomTo(zoom); });
    zoom_->setMenu(menu);
    zoom_->setPopupMode(QToolButton::InstantPopup);
}

void PreviewBar::addKeys()
{
    const auto add = [this](const QKeySequence &key, const auto &act) {
        connect(new QShortcut(key, this), &QShortcut::activated, preview_, act);
    };
    add(Qt::CTRL | Qt::Key_Plus, &PreviewWidget::zoomIn);
    add(Qt::CTRL | Qt::Key_Equal, &PreviewWidget::zoomIn);
    add(Qt::CTRL | Qt::Key_Minus, &PreviewWidget::zoomOut);
    add(Qt::CTRL | Qt::Key_0, [this] { preview_->zoomTo(std::nullopt); });
    add(Qt::CTRL | Qt::Key_1, [this] { preview_->zoomTo(PreviewWidget::dotForDot); });
    add(Qt::CTRL | Qt::Key_2, [this] { preview_->zoomTo(PreviewWidget::mostZoom); });
}

// Asked at each step of a slider, so nothing is done again.
void PreviewBar::setAdjustable(bool isAdjustable)
{
    if (std::exchange(isAdjustable_, isAdjustable) != isAdjustable)
        showAdjustable();
}

void PreviewBar::showAdjustable()
{
    for (QToolButton *button : {compare_, divide_, clipped_})
        button->setVisible(isAdjustable_);
    if (!isAdjustable_)
        setCompared(false);
    useSwitches();
    showNote();
}

void PreviewBar::setProofable(bool isProofable)
{
    isProofable_ = isProofable;
    proof_->setVisible(isProofable);
}

// What a printer does not have stays switched on for the next one.
void PreviewBar::useSwitches()
{
    preview_->setDivided(isAdjustable_ && divide_->isChecked());
    preview_->setMarksClipped(isAdjustable_ && clipped_->isChecked());
}

bool PreviewBar::isProofing() const
{
    return isProofable_ && proof_->isChecked();
}

void PreviewBar::setRemarks(const QStringList &remarks)
{
    if (std::exchange(remarks_, remarks) != remarks)
        showNote();
}

void PreviewBar::showView()
{
    const auto zoom = preview_->zoom();
    zoom_->setText(zoom ? tr("%1 %", "a zoom").arg(std::round(*zoom * 100)) : tr("Fit"));
    zoom_->setAccessibleName(tr("Zoom: %1").arg(zoom_->text()));
    smaller_->setEnabled(zoom.has_value());
    const PageView view = preview_->view();
    larger_->setEnabled(view.placement && zoom.value_or(view.zoomOfPage()) < PreviewWidget::mostZoom);
    const auto shareText = [](double percent) {
        return tr("Clipped: %1 %").arg(QLocale().toString(percent, 'f', 1));
    };
    // As wide as it may get, so that the row stays as it is while a slider is dragged.
    const bool isMarked = clipped_->isChecked();
    clipped_->setText(isMarked ? shareText(100) : tr("Clipped"));
    clipped_->setMinimumWidth(isMarked ? clipped_->sizeHint().width() : 0);
    const double share = preview_->clippedShare() * 100;
    if (isMarked)
        clipped_->setText(shareText(share > 0 ? std::max(share, 0.1) : 0)); // too small a share is one, too
    showNote();
}

void PreviewBar::showNote()
{
    QStringList notes;
    if (isAdjustable_) {
        notes += tr("Preview is approximate");
        const PageView view = preview_->view();
        const bool isSmall = view.zoom.value_or(view.zoomOfPage()) < PreviewWidget::dotForDot;
        if (isSmall && preview_->hidesSharpening())
            notes += tr("sharpness shows at 100 %");
    }
    QStringList lines = {notes.join(tr(" \u00b7 ", "between two short notes"))};
    lines += preview_->bleedText();
    for (const QString &remark : std::as_const(remarks_))
        lines += plainText(remark, shownTextLimit);
    lines.removeAll(QString());
    note_->setText(lines.join(u'\n'));
    note_->setVisible(!lines.isEmpty());
    // It keeps its lines, so that nothing moves while a slider is dragged.
    const int height = lines.isEmpty() ? 0 : note_->heightForWidth(width());
    if (lines.isEmpty() || height > note_->minimumHeight())
        note_->setMinimumHeight(height);
}

void PreviewBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (event->oldSize().width() == width())
        return;
    note_->setMinimumHeight(0);
    showNote();
}

void PreviewBar::setCompared(bool isCompared)
{
    preview_->setCompared(isCompared);
    // A menu or a list that opens meanwhile gets the key's release.
    if (isCompared)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
}

// The key is held wherever the focus is: what does not use it passes it on to the window.
bool PreviewBar::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if (isPress || event->type() == QEvent::KeyRelease) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool begins = isPress && isAdjustable_ && key->modifiers() == Qt::NoModifier;
        if (key->key() == compareKey && (begins || !isPress)) {
            if (!key->isAutoRepeat())
                setCompared(isPress);
            return true;
        }
    }
    if (event->type() == QEvent::WindowDeactivate && watched == window() && !compare_->isDown())
        setCompared(false); // the release goes to another program
    return QWidget::eventFilter(watched, event);
}

void PreviewBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    window()->installEventFilter(this); // again does not add a second one
}

} // namespace printdialog
