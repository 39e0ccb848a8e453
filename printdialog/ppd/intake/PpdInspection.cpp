// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdInspection.h"

#include "PageSizeSearch.h"
#include "PlainText.h"
#include "PpdCounts.h"

#include <QtCore/QCoreApplication>

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
        if (!line.complete && isPadding(line)) {
            dropped_.push_back(line); // so that page sizes can follow
            return true;
        }
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
        if (const auto excess = counts_.add(line, option_))
            return tooMany(*excess);
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
        if (const auto excess = counts_.addOther())
            return tooMany(*excess);
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
            if (const auto excess = counts_.addGroup())
                return tooMany(*excess);
        }
        return true;
    }

    bool openOption(const PpdLine &line)
    {
        const QByteArrayView keyword = withoutAsterisk(line.optionKeyword);
        if (const auto excess = counts_.addOption())
            return tooMany(*excess);
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

    bool inspectEnd()
    {
        noteOpenParts();
        dropEmptyPageSizes();
        if (!pageSizes_.hasFound())
            notes_ += tr("The PPD has no page sizes; A4 and Letter take their place.");
        if (counts_.constraintCost() > Limits::constraintCost)
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

    bool tooMany(const PpdExcess &excess)
    {
        return correct(excess.fault, tr("it has more than %1 %2").arg(number(excess.limit), excess.what));
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
    PageSizeSearch pageSizes_;
    PpdCounts counts_;
};

} // namespace

Result<PpdInspection, PpdFault> inspectPpd(const QByteArray &data, const QString &name)
{
    return Inspector(data, name).run();
}

} // namespace printdialog
