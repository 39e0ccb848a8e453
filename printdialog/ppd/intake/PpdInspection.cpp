// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdInspection.h"

#include "PageSizeSearch.h"
#include "PlainText.h"
#include "PpdScanner.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>

#include <algorithm>
#include <utility>
#include <vector>

namespace printdialog {

namespace {

using Limits = PpdLimits;

QString shown(QByteArrayView bytes)
{
    return plainText(QString::fromUtf8(bytes), 60);
}

QString number(qint64 value)
{
    return QString::number(value);
}

bool hasControl(QByteArrayView text)
{
    return std::any_of(text.begin(), text.end(),
                       [](char byte) { return byte >= 0 && byte < ' ' && byte != '\t'; });
}

/// libcups skips the Ctrl-Z with which a file from DOS may end, wherever it is.
QByteArray withoutCtrlZ(const QByteArray &data)
{
    constexpr char ctrlZ = '\x1a';
    return data.contains(ctrlZ) ? QByteArray(data).replace(ctrlZ, QByteArrayView()) : data;
}

bool isStructure(QByteArrayView keyword)
{
    return keyword == "OpenUI" || keyword == "CloseUI" || keyword == "JCLOpenUI" || keyword == "JCLCloseUI" ||
           keyword == "OpenGroup" || keyword == "CloseGroup" || keyword == "PPD-Adobe";
}

QByteArrayView withoutAsterisk(QByteArrayView keyword)
{
    return keyword.startsWith('*') ? keyword.sliced(1) : keyword;
}

/// The `de` of `de.PageSize`, the `zh_TW` of `zh_TW.PageSize`; empty for other keywords.
QByteArrayView languageOf(QByteArrayView keyword)
{
    const qsizetype dot = keyword.indexOf('.');
    return dot == 2 || dot == 5 ? keyword.first(dot) : QByteArrayView();
}

class Inspector
{
    Q_DECLARE_TR_FUNCTIONS(PpdInspection)

public:
    Inspector(const QByteArray &data, const QString &name)
        : data_(withoutCtrlZ(data))
        , name_(plainText(name, 300))
    {
    }

    Result<PpdInspection, PpdFault> run()
    {
        if (inspectWhole() && inspectLines() && inspectEnd())
            return PpdInspection{withoutDropped(), notes()};
        return std::move(failure_);
    }

private:
    /// Empty when libcups accepts the keyword.
    static QString keywordFault(QByteArrayView keyword)
    {
        if (!std::all_of(keyword.begin(), keyword.end(), [](char byte) { return byte > ' ' && byte < 127; }))
            return tr("it is not printable ASCII");
        if (keyword.size() > Limits::keywordBytes)
            return tr("it is longer than %1 characters").arg(number(Limits::keywordBytes));
        return {};
    }

    bool inspectWhole()
    {
        if (data_.isEmpty())
            return fetchAgain(PpdFault::Empty, tr("it is empty"));
        if (data_.size() > Limits::bytes)
            return fetchAgain(PpdFault::TooLarge,
                              tr("it is larger than %1 MiB").arg(number(Limits::bytes >> 20)));
        if (!data_.startsWith("*PPD-Adobe")) {
            failure_ = {PpdFault::NotAPpd,
                        tr("\"%1\" is not a PPD, which is a text that begins with \"*PPD-Adobe:\". Name the "
                           "printer's PPD file.")
                            .arg(name_),
                        {}};
            return false;
        }
        return true;
    }

    bool inspectLines()
    {
        PpdScanner scanner(data_);
        while (const auto line = scanner.next()) {
            openQuoteLine_ = line->quoteClosed ? 0 : line->number;
            lacksLineEnd_ = !line->complete && !isPadding(*line);
            lastLine_ = line->number;
            if (line->end - line->begin > Limits::entryBytes)
                return correct(PpdFault::Malformed, tr("the value in line %1 is longer than %2 bytes")
                                                        .arg(line->number)
                                                        .arg(Limits::entryBytes));
            if (!inspectLine(*line))
                return false;
        }
        return true;
    }

    bool inspectLine(const PpdLine &line)
    {
        const bool comment = line.mainKeyword.isEmpty();
        if (entry(line).contains('\0'))
            return dropUnread(line);
        if (line.longest > Limits::lineBytes && !line.value.startsWith('"'))
            return correct(PpdFault::Malformed,
                           tr("line %1 is longer than %2 bytes").arg(line.number).arg(Limits::lineBytes));
        const bool tooLong = line.longest > Limits::readableLineBytes;
        if (comment) {
            if (tooLong)
                dropped_.push_back(line);
            return true;
        }
        if (isStructure(line.mainKeyword))
            return inspectStructure(line, tooLong);
        if (!count(line))
            return false;
        if (tooLong)
            drop(line,
                 tr("a line of it is longer than %1 characters").arg(number(Limits::readableLineBytes)));
        else if (hasControl(line.text))
            drop(line, tr("its text has control characters"));
        else if (line.mainKeyword.contains('/') || !keywordFault(line.mainKeyword).isEmpty())
            drop(line, tr("its keyword cannot be read"));
        else if (const QString fault = keywordFault(line.optionKeyword); !fault.isEmpty())
            drop(line, fault);
        else
            pageSizes_.see(line, option_);
        return true;
    }

    /// For libcups, the line ends at the NUL.
    bool dropUnread(const PpdLine &line)
    {
        if (++others_ > Limits::otherEntries)
            return tooMany(PpdFault::Malformed, tr("entries beside its options"), Limits::otherEntries);
        if (isPadding(line))
            dropped_.push_back(line);
        else
            drop(line, tr("its text has control characters"));
        return true;
    }

    bool inspectStructure(const PpdLine &line, bool tooLong)
    {
        if (tooLong)
            return correct(
                PpdFault::Malformed,
                tr("line %1 is longer than %2 bytes").arg(line.number).arg(Limits::readableLineBytes));
        if (hasControl(line.text))
            return correct(PpdFault::Malformed, tr("line %1 has control characters").arg(line.number));
        if (line.mainKeyword.endsWith("OpenUI"))
            return openOption(line);
        if (line.mainKeyword.endsWith("CloseUI"))
            option_ = {};
        if (line.mainKeyword == "CloseGroup")
            groupLine_ = 0;
        if (line.mainKeyword == "OpenGroup") {
            groupLine_ = line.number;
            if (++groups_ > Limits::groups)
                return tooMany(PpdFault::TooManyOptions, tr("groups of options"), Limits::groups);
        }
        return true;
    }

    bool openOption(const PpdLine &line)
    {
        const QByteArrayView keyword = withoutAsterisk(line.optionKeyword);
        if (++options_ > Limits::options)
            return tooMany(PpdFault::TooManyOptions, tr("options"), Limits::options);
        if (keyword.isEmpty()) {
            drop(line, tr("it has no keyword"));
            return true;
        }
        // libcups includes the asterisk in the length.
        if (const QString fault = keywordFault(line.optionKeyword); !fault.isEmpty())
            return correct(PpdFault::BadKeyword, tr("the keyword of the option \"%1\" in line %2 is bad: %3")
                                                     .arg(shown(keyword), number(line.number), fault));
        option_ = keyword;
        optionLine_ = line.number;
        pageSizes_.open(line, option_);
        return true;
    }

    bool count(const PpdLine &line)
    {
        const QByteArrayView keyword = line.mainKeyword;
        if (!option_.isEmpty() && keyword == option_) {
            ++choicesOf_[option_];
            if (++choices_ > Limits::choices)
                return tooMany(PpdFault::TooManyChoices, tr("choices"), Limits::choices);
            if (keyword == "PageSize" && ++sizes_ > Limits::pageSizes)
                return tooMany(PpdFault::TooManyChoices, tr("page sizes"), Limits::pageSizes);
        } else if (keyword == "PaperDimension" || keyword == "ImageableArea") {
            if (++sizeEntries_ > 2 * Limits::pageSizes)
                return tooMany(PpdFault::TooManyChoices, tr("page sizes"), Limits::pageSizes);
        } else if (keyword == "UIConstraints" || keyword == "NonUIConstraints" ||
                   keyword == "cupsUIConstraints") {
            return countConstraint(line.value);
        } else if (keyword.startsWith("ParamCustom")) {
            if (++customParameters_ > Limits::customParameters)
                return tooMany(PpdFault::Malformed, tr("parameters of custom choices"),
                               Limits::customParameters);
        } else if (const QByteArrayView language = languageOf(keyword); !language.isEmpty()) {
            // Counted per language, since libcups keeps only one.
            if (++translations_[language] > Limits::otherEntries)
                return tooMany(PpdFault::Malformed, tr("translations into one language"),
                               Limits::otherEntries);
        } else if (++others_ > Limits::otherEntries) {
            return tooMany(PpdFault::Malformed, tr("entries beside its options"), Limits::otherEntries);
        }
        return true;
    }

    bool countConstraint(QByteArrayView value)
    {
        constraints_ += std::max<qsizetype>(1, std::count(value.begin(), value.end(), '*') / 2);
        if (constraints_ > Limits::constraints)
            return tooMany(PpdFault::TooManyConstraints, tr("constraints"), Limits::constraints);
        for (qsizetype at = value.indexOf('*'); at >= 0; at = value.indexOf('*', at + 1)) {
            const QByteArrayView rest = value.sliced(at + 1);
            const auto end =
                std::find_if(rest.begin(), rest.end(), [](char byte) { return byte <= ' ' || byte == '"'; });
            ++constraintsOn_[rest.first(end - rest.begin())];
        }
        return true;
    }

    bool inspectEnd()
    {
        noteOpenParts();
        dropEmptyPageSizes();
        if (!pageSizes_.hasFound())
            notes_ += tr("The PPD has no page sizes; A4 and Letter take their place.");
        // For each constraint, libcups searches the choices of the options that it names.
        qint64 cost = 0;
        for (auto it = constraintsOn_.cbegin(); it != constraintsOn_.cend(); ++it)
            cost += it.value() * choicesOf_.value(it.key());
        if (cost > Limits::constraintCost)
            return correct(PpdFault::TooManyConstraints,
                           tr("its constraints name options with too many choices"));
        return true;
    }

    /// In the order of the lines, as the others.
    void dropEmptyPageSizes()
    {
        dropped_.insert(dropped_.end(), pageSizes_.emptyOnes().begin(), pageSizes_.emptyOnes().end());
        std::ranges::sort(dropped_, {}, &PpdLine::begin);
    }

    /// Some real PPDs lack the line that closes an option, or the end of their last line. Both together mean
    /// that the file was cut off; libcups accepts even that.
    void noteOpenParts()
    {
        const bool isOpen = !option_.isEmpty() || groupLine_ > 0;
        if (openQuoteLine_ > 0) {
            notes_ += tr("The quote opened in line %1 never closes.").arg(openQuoteLine_);
        } else if (isOpen && lacksLineEnd_) {
            notes_ += tr("The PPD seems to be cut off in line %1.").arg(lastLine_);
        } else {
            if (!option_.isEmpty())
                notes_ += tr("The option \"%1\" opened in line %2 never closes.")
                              .arg(shown(option_), number(optionLine_));
            if (groupLine_ > 0)
                notes_ += tr("The group opened in line %1 never closes.").arg(groupLine_);
        }
    }

    QByteArrayView entry(const PpdLine &line) const
    {
        return QByteArrayView(data_).sliced(line.begin, line.end - line.begin);
    }

    bool isPadding(const PpdLine &line) const
    {
        const QByteArrayView bytes = entry(line);
        return std::all_of(bytes.begin(), bytes.end(),
                           [](char byte) { return byte == '\0' || byte == ' ' || byte == '\t'; });
    }

    void drop(const PpdLine &line, const QString &reason)
    {
        dropped_.push_back(line);
        if (++noteCount_ > Limits::notes)
            return;
        const bool choice = !option_.isEmpty() && line.mainKeyword == option_;
        const QString text = choice ? tr("Line %1: the choice \"%2\" of the option \"%3\" is left out: %4.")
                                    : tr("Line %1: the entry \"%3\" \"%2\" is left out: %4.");
        notes_ += text.arg(number(line.number), shown(line.optionKeyword), shown(line.mainKeyword), reason);
    }

    QStringList notes() const
    {
        QStringList all = notes_;
        if (noteCount_ > Limits::notes)
            all += tr("Further entries left out: %1.").arg(noteCount_ - Limits::notes);
        return all;
    }

    /// What ends the last line and what is open there, and adds what is missing.
    QByteArray ending() const
    {
        const bool isDropped = !dropped_.empty() && dropped_.back().end == data_.size();
        QByteArray ending = openQuoteLine_ > 0 && !isDropped ? "\"\n" : lacksLineEnd_ ? "\n" : "";
        if (!pageSizes_.hasFound())
            ending += (groupLine_ > 0 ? "*CloseGroup: *\n" : "") + PageSizeSearch::usualOnes();
        return ending;
    }

    /// Keeps the line ends, so that libcups' line numbers are those of the file.
    QByteArray withoutDropped() const
    {
        const QByteArray added = ending();
        if (dropped_.empty())
            return added.isEmpty() ? data_ : data_ + added;
        QByteArray kept;
        kept.reserve(data_.size() + added.size());
        qsizetype position = 0;
        for (const PpdLine &line : dropped_) {
            kept.append(data_.constData() + position, line.begin - position);
            std::copy_if(data_.begin() + line.begin, data_.begin() + line.end, std::back_inserter(kept),
                         [](char byte) { return byte == '\r' || byte == '\n'; });
            position = line.end;
        }
        return kept.append(data_.constData() + position, data_.size() - position).append(added);
    }

    bool fetchAgain(PpdFault fault, const QString &reason)
    {
        return refuse(fault, reason, tr("Fetch the printer's PPD again"));
    }

    bool correct(PpdFault fault, const QString &reason)
    {
        return refuse(fault, reason, tr("Correct it or fetch another from the printer's maker"));
    }

    bool tooMany(PpdFault fault, const QString &what, qint64 limit)
    {
        return correct(fault, tr("it has more than %1 %2").arg(number(limit), what));
    }

    bool refuse(PpdFault fault, const QString &reason, const QString &remedy)
    {
        failure_ = {fault, tr("The PPD \"%1\" cannot be used: %2. %3.").arg(name_, reason, remedy), {}};
        return false;
    }

    const QByteArray data_;
    QString name_;
    Failure<PpdFault> failure_{PpdFault::Malformed, {}, {}};
    std::vector<PpdLine> dropped_;
    bool lacksLineEnd_ = false; // of the last line
    int lastLine_ = 0;
    int openQuoteLine_ = 0; // where the quote opens that never closes
    QStringList notes_;
    int noteCount_ = 0;

    QByteArrayView option_; // the open option
    int optionLine_ = 0;
    int groupLine_ = 0; // of the open group
    int options_ = 0;
    int groups_ = 0;
    int choices_ = 0;
    int sizes_ = 0;
    PageSizeSearch pageSizes_;
    int sizeEntries_ = 0;
    int customParameters_ = 0;
    int others_ = 0;
    QHash<QByteArrayView, int> translations_; // by language
    qint64 constraints_ = 0;
    QHash<QByteArrayView, qint64> choicesOf_;
    QHash<QByteArrayView, qint64> constraintsOn_;
};

} // namespace

Result<PpdInspection, PpdFault> inspectPpd(const QByteArray &data, const QString &name)
{
    return Inspector(data, name).run();
}

} // namespace printdialog
