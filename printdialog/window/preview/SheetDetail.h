// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PageView.h"
#include "PhotoDetail.h"
#include "PrintSheet.h"

#include <QtCore/QObject>

#include <memory>
#include <vector>

namespace printdialog {

/// The pixels of the photos on a sheet, each about as large as it is seen: the current one first. One that
/// lies on it several times is decoded once.
class SheetDetail : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Decodes the photos that were not on the previous sheet.
    /// @param current the index of the current photo; -1 for none
    /// @param view in which the sheet will be seen, for the first guess
    void setSheet(const PrintSheet &sheet, qsizetype current, const PageView &view);
    /// Decodes what is missing for this view.
    void want(const PrintSheet &sheet, const PageView &view);

    /// Of the photo at the sheet's index.
    const PhotoDetail &at(qsizetype index) const { return *details_.at(static_cast<std::size_t>(index)); }
    /// Whether all photos are decoded, or have turned out to be unreadable; so without photos.
    bool isReady() const;
    /// Whether what is wanted is there.
    bool isComplete() const;

Q_SIGNALS:
    /// A photo's pixels are others, or it is unreadable.
    void changed(const printdialog::PictureKey &key);

private:
    std::vector<std::shared_ptr<PhotoDetail>> details_; ///< by the sheet's indexes; shared by copies
};

} // namespace printdialog
