// SPDX-License-Identifier: MIT
#include "HtmlReport.h"

#include "foundation/PrintableText.h"
#include "validator/rules/Wording.h"

#include <QFileInfo>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr const char *styleSheet =
    "body{font:15px/1.5 system-ui,sans-serif;max-width:60em;margin:2em auto;padding:0 1em;color:#222;background:#fff}"
    "header{display:flex;gap:1em;align-items:center}header img{width:64px;height:64px;border-radius:14px}"
    "h1{font-size:1.5em;margin:0}h2{font-size:1.1em;margin:1.6em 0 .4em}table{border-collapse:collapse}"
    "th{text-align:left;font-weight:normal;color:#555;padding:.1em 1em .1em 0;vertical-align:top}"
    "td{overflow-wrap:anywhere}.finding{border-left:4px solid;padding:.3em .8em;margin:.6em 0}"
    ".error{border-color:#b3261e}.warning{border-color:#9a6700}.note{border-color:#57606a}"
    ".code{color:#555}code{overflow-wrap:anywhere}summary,li{overflow-wrap:anywhere}"
    "details{margin-left:1em}ul{margin:0 0 0 1em;padding:0;list-style:none}"
    ":root{color-scheme:light "
    "dark}@media(prefers-color-scheme:dark){body{color:#ddd;background:#1b1b1b}th,.code{color:#aaa}}";

QString escaped(const QString &text)
{
    return printableText(text).toHtmlEscaped();
}

QString text(const char *part)
{
    return QString::fromUtf8(part);
}

QString bytesText(quint64 bytes)
{
    return QLocale().formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeSIFormat);
}

QString filesText(qsizetype count)
{
    return count == 1 ? worded("HTML_ONE_FILE") : worded("HTML_FILES", {QLocale().toString(count)});
}

QString table(const QString &title, const NamedValues &values)
{
    if (values.isEmpty())
        return {};
    QString html = u"<h2>"_s + title + u"</h2>\n<table>\n"_s;
    for (const auto &[name, value] : values)
        html += u"<tr><th>"_s + escaped(name) + u"</th><td>"_s + escaped(value) + u"</td></tr>\n"_s;
    return html + u"</table>\n"_s;
}

QString findingHtml(const Finding &finding)
{
    const Rule &rule = *finding.rule;
    const QString severity = severityName(rule.severity);
    const QString code = text(rule.code);
    QString html = u"<div class=\"finding "_s + severity + u"\"><strong>"_s + escaped(worded(rule.title)) +
                   u"</strong> <span class=\"code\">"_s + severityText(rule.severity) + u", "_s +
                   escaped(text(rule.id)) + (code.isEmpty() ? QString() : u", "_s + escaped(code)) + u"</span><br>\n"_s;
    if (!finding.evidence.path.isEmpty())
        html += u"<code>"_s + escaped(finding.evidence.path) + u"</code>: "_s;
    return html + escaped(finding.evidence.text) + u"<br>\n"_s + escaped(worded(rule.rule)) + u' ' +
           escaped(worded(rule.fix)) + u"</div>\n"_s;
}

QString sizeHtml(const SizeNode &node)
{
    const QString line = escaped(node.name) + u" <span class=\"code\">"_s + bytesText(node.bytes);
    if (node.parts.isEmpty())
        return u"<li>"_s + line + u"</span></li>\n"_s;
    QString html = u"<li><details><summary>"_s + line + u", "_s + filesText(node.files) + u"</span></summary><ul>\n"_s;
    for (const SizeNode &part : node.parts)
        html += sizeHtml(part);
    if (node.more > 0)
        html += u"<li class=\"code\">"_s + worded("HTML_MORE", {QLocale().toString(node.more)}) + u"</li>\n"_s;
    return html + u"</ul></details></li>\n"_s;
}

/// The file's name without its folders, which are nobody's business but the machine's.
QString fileName(const ShownPackage &package)
{
    return QFileInfo(package.judged.file).fileName();
}

/// The app's name; the file's where there is no app.
QString heading(const ShownPackage &package)
{
    const auto name = std::ranges::find(package.facts, worded("HTML_NAME"), &NamedValues::value_type::first);
    return name == package.facts.end() ? fileName(package) : name->second;
}

QString packageHtml(const ShownPackage &package)
{
    const JudgedPackage &judged = package.judged;
    QString html = u"<section>\n<header>"_s;
    if (!package.iconPng.isEmpty())
        html += u"<img alt=\"\" src=\"data:image/png;base64,"_s + QString::fromLatin1(package.iconPng.toBase64()) +
                u"\">"_s;
    html += u"<div><h1>"_s + escaped(heading(package)) + u"</h1><span class=\"code\">"_s + escaped(fileName(package)) +
            u"</span></div></header>\n"_s;
    if (!judged.failure.isEmpty())
        return html + u"<p class=\"finding error\">"_s + escaped(judged.failure) + u"</p>\n</section>\n"_s;
    html += table(worded("HTML_FACTS"), package.facts);
    const QList<Finding> findings = findingsAmong(judged.verdicts);
    html += u"<h2>"_s + worded("FINDINGS_TITLE") + u": "_s + findingSumText(findings) + u"</h2>\n"_s;
    for (const Finding &finding : findings)
        html += findingHtml(finding);
    html += table(worded("REVIEW_SIGNATURE"), package.signature);
    if (package.sizes.files > 0) {
        html += u"<h2>"_s + worded("REVIEW_SIZES") + u": "_s + bytesText(package.sizes.bytes) + u", "_s +
                filesText(package.sizes.files) + u"</h2>\n<ul>\n"_s;
        for (const SizeNode &part : package.sizes.parts)
            html += sizeHtml(part);
        html += u"</ul>\n"_s;
    }
    return html + u"</section>\n"_s;
}

} // namespace

QByteArray htmlReport(const QList<ShownPackage> &packages, const QString &version)
{
    QString html = u"<!DOCTYPE html>\n<html lang=\""_s + worded("HTML_LANGUAGE") +
                   u"\">\n<head>\n<meta charset=\"utf-8\">\n"
                   "<meta name=\"viewport\" content=\"width=device-width\">\n"
                   "<meta http-equiv=\"Content-Security-Policy\" "
                   "content=\"default-src 'none'; img-src data:; style-src 'unsafe-inline'\">\n"
                   "<meta name=\"generator\" content=\"Lumora "_s +
                   version + u"\">\n<title>"_s +
                   (packages.size() == 1 ? escaped(heading(packages.first())) : worded("HTML_PACKAGES")) +
                   u"</title>\n<style>"_s + text(styleSheet) + u"</style>\n</head>\n<body>\n"_s;
    for (const ShownPackage &package : packages)
        html += packageHtml(package);
    return (html + u"</body>\n</html>\n"_s).toUtf8();
}

} // namespace lumora
