// SPDX-License-Identifier: MIT
#include "JunitReport.h"

#include "foundation/PrintableText.h"
#include "validator/rules/Wording.h"

#include <QXmlStreamWriter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct Counts
{
    qsizetype tests = 0;
    qsizetype failures = 0;
    qsizetype errors = 0;
    qsizetype skipped = 0;
};

QString text(const char *part)
{
    return QString::fromUtf8(part);
}

bool isSkipped(const RuleVerdict &verdict)
{
    return verdict.judgement.state == Judgement::NotApplicable || verdict.judgement.state == Judgement::Unknown;
}

Counts countsOf(const JudgedPackage &package, std::optional<Severity> failOn)
{
    Counts counts;
    counts.errors = package.failure.isEmpty() ? 0 : 1;
    counts.tests = package.verdicts.size() + counts.errors;
    counts.failures = std::ranges::count_if(
        package.verdicts, [failOn](const RuleVerdict &verdict) { return countsAsFailure(verdict, failOn); });
    counts.skipped = std::ranges::count_if(package.verdicts, isSkipped);
    return counts;
}

void writeCounts(QXmlStreamWriter &xml, const Counts &counts)
{
    xml.writeAttribute(u"tests"_s, QString::number(counts.tests));
    xml.writeAttribute(u"failures"_s, QString::number(counts.failures));
    xml.writeAttribute(u"errors"_s, QString::number(counts.errors));
    xml.writeAttribute(u"skipped"_s, QString::number(counts.skipped));
}

/// What was found and how to mend it. XML cannot hold every character that a file's name may.
QString foundBy(const RuleVerdict &verdict)
{
    QStringList lines;
    for (const Evidence &evidence : verdict.judgement.evidence)
        lines +=
            printableText(evidence.path.isEmpty() ? evidence.text : QString(evidence.path + u": "_s + evidence.text));
    return (lines << worded(verdict.rule->fix)).join(u'\n');
}

void writeCase(QXmlStreamWriter &xml, const RuleVerdict &verdict, std::optional<Severity> failOn)
{
    const Rule &rule = *verdict.rule;
    xml.writeStartElement(u"testcase"_s);
    xml.writeAttribute(u"classname"_s, u"lumora.validate"_s);
    xml.writeAttribute(u"name"_s, text(rule.id));
    if (countsAsFailure(verdict, failOn)) {
        xml.writeStartElement(u"failure"_s);
        xml.writeAttribute(u"type"_s, text(*rule.code == '\0' ? rule.id : rule.code));
        xml.writeAttribute(u"message"_s, worded(rule.title));
        xml.writeCharacters(foundBy(verdict));
        xml.writeEndElement();
    } else if (isSkipped(verdict)) {
        xml.writeEmptyElement(u"skipped"_s);
        xml.writeAttribute(u"message"_s, printableText(verdict.judgement.reason));
    } else if (verdict.judgement.state == Judgement::Broken) {
        xml.writeTextElement(u"system-out"_s,
                             severityName(rule.severity) + u": "_s + worded(rule.title) + u'\n' + foundBy(verdict));
    }
    xml.writeEndElement();
}

void writeSuite(QXmlStreamWriter &xml, const JudgedPackage &package, std::optional<Severity> failOn)
{
    xml.writeStartElement(u"testsuite"_s);
    xml.writeAttribute(u"name"_s, printableText(package.file));
    writeCounts(xml, countsOf(package, failOn));
    if (!package.failure.isEmpty()) {
        xml.writeStartElement(u"testcase"_s);
        xml.writeAttribute(u"classname"_s, u"lumora.validate"_s);
        xml.writeAttribute(u"name"_s, u"read"_s);
        xml.writeEmptyElement(u"error"_s);
        xml.writeAttribute(u"message"_s, printableText(package.failure));
        xml.writeEndElement();
    }
    for (const RuleVerdict &verdict : package.verdicts)
        writeCase(xml, verdict, failOn);
    xml.writeEndElement();
}

} // namespace

QByteArray junitReport(const QList<JudgedPackage> &packages, std::optional<Severity> failOn)
{
    Counts all;
    for (const JudgedPackage &package : packages) {
        const Counts counts = countsOf(package, failOn);
        all.tests += counts.tests;
        all.failures += counts.failures;
        all.errors += counts.errors;
        all.skipped += counts.skipped;
    }
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(u"testsuites"_s);
    xml.writeAttribute(u"name"_s, u"lumora validate"_s);
    writeCounts(xml, all);
    for (const JudgedPackage &package : packages)
        writeSuite(xml, package, failOn);
    xml.writeEndElement();
    xml.writeEndDocument();
    return bytes;
}

} // namespace lumora
