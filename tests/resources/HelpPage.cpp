// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "HelpPage.h"

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

#include <algorithm>

namespace {

/// Reads the page from its first element to its last.
class Reader
{
public:
    explicit Reader(QFile *file)
        : xml_(file)
    {
    }

    HelpPage read()
    {
        while (!xml_.atEnd()) {
            switch (xml_.readNext()) {
            case QXmlStreamReader::StartElement:
                start(xml_.name(), xml_.attributes());
                break;
            case QXmlStreamReader::EndElement:
                end(xml_.name());
                break;
            case QXmlStreamReader::Characters:
                text_ += xml_.text();
                break;
            default:
                break;
            }
        }
        if (xml_.hasError())
            page_.error = QStringLiteral("line %1: %2").arg(xml_.lineNumber()).arg(xml_.errorString());
        return page_;
    }

private:
    void start(QStringView name, const QXmlStreamAttributes &attributes)
    {
        const auto value = [&attributes](const char *key) {
            return attributes.value(QLatin1String(key)).toString();
        };
        if (name == QLatin1String("html"))
            page_.language = value("lang");
        if (attributes.hasAttribute(QLatin1String("href")))
            page_.links.append(value("href"));
        if (name == QLatin1String("img")) {
            page_.pictures.append(
                {value("src"), QSize(value("width").toInt(), value("height").toInt()), value("alt")});
        }
        if (isHeading(name))
            page_.topics.append(HelpTopic());
        const QString anchor = name == QLatin1String("a") ? value("name") : value("id");
        if (!anchor.isEmpty()) {
            page_.anchors.append(anchor);
            if (!page_.topics.isEmpty())
                page_.topics.last().anchor = anchor;
        }
        if (name == QLatin1String("dd") && !page_.topics.isEmpty())
            page_.topics.last().facts.append(QList<HelpData>());
        if (name == QLatin1String("data"))
            dataValue_ = value("value");
        if (name == QLatin1String("data") || name == QLatin1String("b") || isHeading(name))
            text_.clear();
    }

    void end(QStringView name)
    {
        if (isHeading(name))
            page_.topics.last().heading = text_.simplified();
        if (name == QLatin1String("b"))
            page_.terms.append(text_.simplified());
        if (name == QLatin1String("data") && !page_.topics.isEmpty() &&
            !page_.topics.constLast().facts.isEmpty())
            page_.topics.last().facts.last().append({dataValue_, text_.simplified()});
    }

    static bool isHeading(QStringView name)
    {
        return name == QLatin1String("h2") || name == QLatin1String("h3");
    }

    QXmlStreamReader xml_;
    HelpPage page_;
    QString text_;
    QString dataValue_;
};

} // namespace

const HelpTopic *HelpPage::topic(const QString &anchor) const
{
    const auto found = std::find_if(topics.cbegin(), topics.cend(),
                                    [&anchor](const HelpTopic &topic) { return topic.anchor == anchor; });
    return found == topics.cend() ? nullptr : &*found;
}

HelpPage readHelpPage(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        HelpPage page;
        page.error = file.errorString();
        return page;
    }
    return Reader(&file).read();
}
