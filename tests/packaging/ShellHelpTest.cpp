// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CommandRun.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

using namespace testing_support;
using namespace Qt::StringLiterals;

namespace {

const QString packaging = QStringLiteral(CORVEL_SOURCE_DIR "/packaging/");
const QString program = QStringLiteral(CORVEL_PRINT_PROGRAM);

QString helpText()
{
    return QString::fromUtf8(runCommand(program, {u"--help"_s}).output);
}

/// The long names of all options.
QStringList optionNames()
{
    static const QRegularExpression option(u"^ .*?--([-a-z]+)"_s, QRegularExpression::MultilineOption);
    QStringList names;
    const QString options = helpText().section(u"Options:"_s, 1).section(u"Exit status:"_s, 0, 0);
    for (auto match = option.globalMatch(options); match.hasNext();)
        names.append(match.next().captured(1));
    names.removeDuplicates();
    return names;
}

/// What bash offers for the words, the last of which is being typed.
QStringList completions(const QStringList &words)
{
    const QString script =
        u"source /usr/share/bash-completion/bash_completion; source \"$1\"; shift; "
        "COMP_WORDS=(); for word; do IFS== read -ra parts <<<\"$word\"; first=1; "
        "for part in \"${parts[@]}\"; do ((first)) || COMP_WORDS+=(=); first=0; "
        "COMP_WORDS+=(\"$part\"); done; [[ $word == *= ]] && COMP_WORDS+=(= ''); "
        "[[ $word ]] || COMP_WORDS+=(''); done; COMP_LINE=\"$*\"; COMP_POINT=${#COMP_LINE}; "
        "COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); compopt() { :; }; "
        "_corvel_print \"$1\" \"${COMP_WORDS[COMP_CWORD]}\" \"${COMP_WORDS[COMP_CWORD - 1]}\"; "
        "printf '%s\\n' \"${COMPREPLY[@]}\""_s;
    const CommandRun run =
        runCommand(u"bash"_s, QStringList{u"-c"_s, script, u"bash"_s,
                                          packaging + "completions/corvel-print.bash"_L1, program} +
                                  words);
    return QString::fromUtf8(run.output).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

/// What a shell's user is told of the program: the manual page and the completions.
class ShellHelpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void manualPage();
    void completionsKnowEveryOption();
    void bashCompletes();
};

// It reads well, and says every line of the help.
void ShellHelpTest::manualPage()
{
    const QString page = QStringLiteral(CORVEL_MAN_PAGE);
    const CommandRun formatted = runCommand(
        u"groff"_s, {u"-man"_s, u"-ww"_s, u"-Tutf8"_s, u"-P-cbou"_s, u"-rLL=2000n"_s, u"-rHY=0"_s, page});
    QVERIFY2(formatted.status == 0 && !formatted.output.contains("warning"), formatted.output.constData());
    const QString text = QString::fromUtf8(formatted.output).simplified();
    for (const QString &line : helpText().split(u'\n')) {
        static const QRegularExpression columns(u" {2,}"_s);
        const bool isHeading = line.endsWith(u':') || line.startsWith("Usage"_L1);
        for (const QString &part : isHeading ? QStringList() : line.split(columns))
            QVERIFY2(text.contains(part), qPrintable(part));
    }
}

void ShellHelpTest::completionsKnowEveryOption()
{
    const QStringList names = optionNames();
    QVERIFY(names.size() > 10);
    QStringList offered = completions({u"--"_s});
    offered.replaceInStrings(QRegularExpression(u"^--"_s), QString());
    const QSet<QString> expected(names.cbegin(), names.cend());
    QCOMPARE(QSet<QString>(offered.cbegin(), offered.cend()), expected);

    const QString fish = QString::fromUtf8(contentOf(packaging + "completions/corvel-print.fish"_L1));
    const QString zsh = QString::fromUtf8(contentOf(packaging + "completions/_corvel-print"_L1));
    for (const QString &name : names) {
        QVERIFY2(fish.contains(u" -l %1 "_s.arg(name)), qPrintable(name));
        QVERIFY2(zsh.contains(QRegularExpression(u"--%1[[}]"_s.arg(name))), qPrintable(name));
    }
}

// The program itself is asked for its printers, their options and choices.
void ShellHelpTest::bashCompletes()
{
    QCOMPARE(completions({u"--mode"_s, u"s"_s}), QStringList{u"settings"_s});
    QCOMPARE(completions({u"--mode=c"_s}), QStringList{u"constraint"_s});
    QCOMPARE(completions({u"--printer"_s, u"b"_s}), QStringList{u"built-in"_s});
    const QStringList toPrinter = {u"--printer"_s, u"built-in"_s, u"-o"_s};
    QCOMPARE(completions(toPrinter + QStringList{u"Sh"_s}),
             (QStringList{u"SharpnessEnabled="_s, u"SharpnessRadius="_s, u"SharpnessIntensity="_s}));
    QCOMPARE(completions(toPrinter + QStringList{u"Overcoat="_s}), (QStringList{u"Glossy"_s, u"Matte"_s}));
    QCOMPARE(completions(toPrinter + QStringList{u"Overcoat=M"_s}), QStringList{u"Matte"_s});
    const QString postcard = QStringLiteral(CORVEL_SOURCE_DIR "/tests/packaging");
    QVERIFY(completions({postcard + "/ShellHelp"_L1}).isEmpty()); // no photo
}

QTEST_GUILESS_MAIN(ShellHelpTest)
#include "ShellHelpTest.moc"
