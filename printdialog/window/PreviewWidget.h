// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PageGeometry.h"
#include "Photo.h"

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

namespace printdialog {

/// The page as it will be printed: the paper with the photo on it, placed as the PDF places it. The photo is
/// decoded on a worker thread, at the size of the screen.
class PreviewWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewWidget(QWidget *parent = nullptr);

    void setPhoto(const Photo &photo);
    void setPage(const PageGeometry &page);
    /// Whether the photo's pixels are here.
    bool isReady() const { return !image_.isNull() || isUnreadable_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void ready();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void take(quint64 number, const QImage &image);
    void paintPage(QPainter &painter) const;
    QString text() const;

    Photo photo_;
    PageGeometry page_;
    QImage image_;
    bool isUnreadable_ = false;
    quint64 number_ = 0; ///< of the photo that is shown; an answer for another one is dropped
};

} // namespace printdialog
