// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PreviewBar.h"

#include "PlainText.h"
#include "PreviewWidget.h"
#include "WrappingRow.h"

#include <QtCore/QEvent>
#include <QtCore/QLocale>
#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtGui/QShortcut>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <cmath>

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
    , note_(new QLabel(this))
{
    smaller_->setAccessibleName(tr("Zoom out"));
    larger_->setAccessibleName(tr("Zoom in"));
    for (QToolButton *button : {divide_, clipped_, proof_})
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
    row->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
    for (QToolButton *button : {compare_, divide_, clipped_, proof_})
        row->addWidget(button);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(row);
    layout->addWidget(note_);

    connect(smaller_, &QToolButton::clicked, preview_, &PreviewWidget::zoomOut);
    connect(larger_, &QToolButton::clicked, preview_, &PreviewWidget::zoomIn);
    connect(compare_, &QToolButton::pressed, this, [this] { preview_->setCompared(true); });
    connect(compare_, &QToolButton::released, this, [this] { preview_->setCompared(false); });
    connect(divide_, &QToolButton::toggled, preview_, &PreviewWidget::setDivided);
    connect(clipped_, &QToolButton::toggled, this, [this](bool isOn) {
        preview_->setMarksClipped(isOn);
        showView();
    });
    connect(proof_, &QToolButton::toggled, this, &PreviewBar::proofingChanged);
    connect(preview_, &PreviewWidget::viewChanged, this, &PreviewBar::showView);
    setAdjustable(false);
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
    zoom_->setAccessibleName(tr("Zoom"));
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

void PreviewBar::setAdjustable(bool isAdjustable)
{
    isAdjustable_ = isAdjustable;
    for (QToolButton *button : {compare_, divide_, clipped_})
        button->setVisible(isAdjustable);
    if (!isAdjustable) {
        divide_->setChecked(false);
        clipped_->setChecked(false);
        preview_->setCompared(false);
    }
    showNote();
}

void PreviewBar::setProofable(bool isProofable)
{
    proof_->setVisible(isProofable);
    if (!isProofable)
        proof_->setChecked(false);
}

bool PreviewBar::isProofing() const
{
    return proof_->isChecked();
}

void PreviewBar::setRemarks(const QStringList &remarks)
{
    remarks_ = remarks;
    showNote();
}

void PreviewBar::showView()
{
    const auto zoom = preview_->zoom();
    zoom_->setText(zoom ? tr("%1 %", "a zoom").arg(std::round(*zoom * 100)) : tr("Fit"));
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
        if (preview_->hidesSharpening())
            notes += tr("sharpness shows at 100 %");
    }
    QStringList lines = {notes.join(tr(" \u00b7 ", "between two short notes"))};
    for (const QString &remark : std::as_const(remarks_))
        lines += plainText(remark, shownTextLimit);
    lines.removeAll(QString());
    note_->setText(lines.join(u'\n'));
    note_->setVisible(!lines.isEmpty());
}

// The key is held wherever the focus is: what does not use it passes it on to the window.
bool PreviewBar::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if ((isPress || event->type() == QEvent::KeyRelease) && isAdjustable_) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == compareKey && key->modifiers() == Qt::NoModifier) {
            if (!key->isAutoRepeat())
                preview_->setCompared(isPress);
            return true;
        }
    }
    if (event->type() == QEvent::WindowDeactivate && !compare_->isDown())
        preview_->setCompared(false); // the release goes elsewhere
    return QWidget::eventFilter(watched, event);
}

void PreviewBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    window()->installEventFilter(this); // again does not add a second one
}

} // namespace printdialog
