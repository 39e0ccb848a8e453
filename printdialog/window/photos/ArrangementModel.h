// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Arrangement.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>

#include <functional>
#include <optional>

namespace printdialog {

/// What is to be printed from the window, and which of its photos are selected. The only owner of both. It
/// does what the user wants done with the selected photos, and reports each change with the state before it,
/// so that the change can be taken back.
class ArrangementModel : public QObject
{
    Q_OBJECT

public:
    /// A value; copies share the photos.
    struct State
    {
        Arrangement arrangement = {};
        QList<int> selection = {};     ///< Indexes, ascending; with the current one.
        int current = -1;              ///< The photo that is shown; -1 without photos.
        qsizetype opened = 0;          ///< How many photos had been there from the beginning by then.
        bool isOfList = false;         ///< Each photo came as it is wanted.
        ArrangementStyle opening = {}; ///< The style to begin with.
        int openings = 0;              ///< How many of them there had been by then.
        PlacementChoice coming = {};   ///< Of the photos that are still being opened.
    };

    enum class Order {
        Name,  ///< "2.jpg" before "10.jpg".
        Date,  ///< The oldest first.
        Given, ///< As the files were added.
    };

    /// Changes one photo's placement or copies.
    using Edit = std::function<void(PlacedPhoto &)>;

    using QObject::QObject;

    const State &state() const { return state_; }
    const Arrangement &arrangement() const { return state_.arrangement; }
    const QList<PlacedPhoto> &photos() const { return state_.arrangement.photos; }
    int count() const { return static_cast<int>(photos().size()); }
    int current() const { return state_.current; }
    const QList<int> &selection() const { return state_.selection; }
    /// Whether what is done with a page of a document is done with all of its pages, because nobody sees
    /// which are selected.
    void setPagesTogether(bool areTogether) { arePagesTogether_ = areTogether; }
    /// What edits are made of: the selected photos, with the other pages of their documents where these are
    /// together.
    QList<int> scope() const;
    /// Whether it is not a page that the choice of pages leaves out.
    bool isPrinted(const PlacedPhoto &placed) const;
    /// Whether there is nothing but pages of one document.
    bool isOneDocument() const;
    /// Null without photos. Valid until the next change.
    const PlacedPhoto *currentPhoto() const;

    /// The current photo's placement, without its crop, and the layout: what a preset holds.
    ArrangementStyle style() const;
    /// Arranges all photos in the style, which is one change.
    void setStyle(const ArrangementStyle &style);
    /// Arranges all photos, and those that are opened later, in the style to begin with: nothing that is
    /// taken back.
    void open(const ArrangementStyle &style);
    /// Whether everything still has the style to begin with, and did not come with one of its own.
    bool isAsOpened() const { return isAsOpened(state_); }

    /// Begins with the arrangement, its first photo selected.
    void start(const Arrangement &arrangement);
    /// Appends photos that the arrangement should have begun with, had they been opened by then: what was
    /// done with all photos is done with them, too.
    void append(const QList<Photo> &photos);
    /// Returns to a state that was reported, or that a change led to; what was opened since is appended, and
    /// what is as it was opened has the present style to begin with.
    void restore(const State &state);
    /// Whether the user would lose work with the arrangement: several photos whose order, placements or
    /// copies were changed, or that were added, since it began or was kept.
    bool hasUnkeptWork() const;
    /// The arrangement is printed or saved.
    void keep(const Arrangement &arrangement) { kept_ = arrangement; }

    /// Selects these photos; `current` is among them unless they are none.
    void select(const QList<int> &indexes, int current);
    void setCurrent(int index) { select({index}, index); }
    void selectAll();

    // Each of the following is one change, or none when everything is as wanted already.

    /// Appends the photos, placed like the current one, or like `placement` when there is none. Unless more
    /// are added to others, the first of them is then the current one.
    void add(const QList<Photo> &photos, bool isFirst = true);
    /// The photos, as they are placed, take the place of all, or follow them.
    void replace(const Arrangement &arrangement);
    void follow(const QList<PlacedPhoto> &photos);
    void remove(const QList<int> &indexes);
    void removeSelected() { remove(scope()); }
    /// Moves the selected photos before the one with this index, or to the end; their order stays.
    void moveSelected(int before);
    /// Moves each selected photo one place toward the beginning (-1) or the end (1).
    void stepSelected(int direction);
    void sort(Order order);
    void editSelected(const Edit &edit) { change(scope(), edit); }
    void editCurrent(const Edit &edit);
    /// Gives all photos the placement and the copies of the current one; each keeps its own crop.
    void applyToAll();
    void setLayout(const SheetLayout &layout);
    /// When the current page is not among them, the next one that is becomes current.
    void setPages(const PageChoice &pages);

    /// Accepts that these photos are printed even though they are damaged. Nothing that is taken back.
    void accept(const QList<int> &indexes);

Q_SIGNALS:
    /// A change was made that can be taken back.
    void changed(const printdialog::ArrangementModel::State &before);
    /// Photos were added, removed or moved; the selection may be another one as well.
    void photosChanged();
    /// Others are selected, or another one is current.
    void selectionChanged();
    /// Placements or copies of photos, the layout, or the choice of pages are others.
    void placementChanged();

private:
    QList<int> allIndexes() const;
    using Name = std::pair<QString, int>; ///< A file's path, and a page of it or -1.

    static Name nameOf(const PlacedPhoto &placed) { return {placed.photo.path(), placed.photo.page()}; }
    static bool isAsOpened(const State &state);
    bool isPlain() const;
    int printedFrom(int index) const;
    void change(const QList<int> &indexes, const Edit &edit,
                const std::optional<PlacementChoice> &coming = std::nullopt);
    void reorder(const QList<int> &order);
    void appendOpened();
    void selectSome();
    void notePlaces(qsizetype from);

    State state_;
    QList<PlacedPhoto> opened_; ///< Those from the beginning, as they were then.
    Arrangement kept_;
    bool arePagesTogether_ = false;
    QHash<Name, int> givenPlaces_; ///< In the order in which the files were added.
};

} // namespace printdialog
