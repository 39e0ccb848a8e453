// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "HelpWindow.h"

#include <QtCore/QFile>
#include <QtCore/QLocale>
#include <QtCore/QUrl>
#include <QtGui/QScreen>
#include <QtGui/QTextDocument>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QVBoxLayout>

namespace printdialog {

namespace {

constexpr QSize startSize(86, 33); // average characters and lines, where the screen has room for them
constexpr int textMargin = 12;     // pixels around the text

QString startPage()
{
    const QStringList languages = QLocale().uiLanguages();
    for (const QString &language : languages) {
        const QString code = language.section(QLatin1Char('-'), 0, 0);
        if (code == QLatin1String("en"))
            break;
        QString page = QStringLiteral(":/corvel-print/help/index_%1.html").arg(code);
        if (QFile::exists(page))
            return page;
    }
    return QStringLiteral(":/corvel-print/help/index.html");
}

} // namespace

HelpWindow::HelpWindow(QWidget *parent)
    : QDialog(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Help"));
    auto *text = new QTextBrowser(this);
    text->setSource(QUrl(QLatin1String("qrc") + startPage()));
    text->document()->setDocumentMargin(textMargin);
    text->setAccessibleName(windowTitle());
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(buttons);
    const QSize wanted(startSize.width() * fontMetrics().averageCharWidth(),
                       startSize.height() * fontMetrics().lineSpacing());
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    resize(wanted.boundedTo(parent->screen()->availableSize() - QSize(0, title)));
}

void HelpWindow::showFor(QWidget *parent)
{
    auto *window = parent->findChild<HelpWindow *>(QString(), Qt::FindDirectChildrenOnly);
    if (!window)
        window = new HelpWindow(parent);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace printdialog
