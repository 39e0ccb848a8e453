// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

class QLabel;
class QToolButton;

namespace printdialog {

class PreviewWidget;

/// The controls of a preview: its zoom, the comparison with the unadjusted photo, the marks for clipped tones
/// and the colors of the paper. Their keys work anywhere in the window.
class PreviewBar : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewBar(PreviewWidget *preview, QWidget *parent = nullptr);

    /// Whether the printer says what its options do to a photo. If not, there is nothing to compare.
    void setAdjustable(bool isAdjustable);
    /// Whether the printer names the colors of its paper.
    void setProofable(bool isProofable);
    /// Whether the colors of the paper are to be shown.
    bool isProofing() const;
    /// What the preview cannot show, in sentences.
    void setRemarks(const QStringList &remarks);

Q_SIGNALS:
    void proofingChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QToolButton *addButton(const char *name, const QString &text, const QString &hint);
    void addZoomMenu();
    void addKeys();
    void setCompared(bool isCompared);
    void showAdjustable();
    void useSwitches();
    void showView();
    void showNote();

    PreviewWidget *preview_;
    QToolButton *smaller_;
    QToolButton *zoom_;
    QToolButton *larger_;
    QToolButton *compare_;
    QToolButton *divide_;
    QToolButton *clipped_;
    QToolButton *proof_;
    QToolButton *ruler_;
    QLabel *note_;
    QStringList remarks_;
    bool isAdjustable_ = false;
    bool isProofable_ = false;
};

} // namespace printdialog
