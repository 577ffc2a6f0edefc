// SPDX-License-Identifier: MIT
#include "validator/bundle/LocalizedInfo.h"

#include <QStringEncoder>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QByteArray encoded(const QString &text, QStringConverter::Encoding encoding, bool isMarked)
{
    QStringEncoder encoder(encoding, isMarked ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(text);
}

} // namespace

class StringsTableTest : public QObject
{
    Q_OBJECT

private slots:
    void readsPairs_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<StringsTable>("table");
        const auto row = [](const char *name, const QByteArray &bytes, const StringsTable &table) {
            QTest::newRow(name) << bytes << table;
        };
        const StringsTable lamp{{u"name"_s, u"Stehlampe für Ω"_s}};
        const QString text = u"\"name\" = \"Stehlampe für Ω\";\n"_s;
        row("UTF-8", text.toUtf8(), lamp);
        row("UTF-8, marked", encoded(text, QStringConverter::Utf8, true), lamp);
        row("UTF-16, low byte first", encoded(text, QStringConverter::Utf16LE, true), lamp);
        row("UTF-16, high byte first", encoded(text, QStringConverter::Utf16BE, true), lamp);
        row("UTF-16, low byte first, unmarked", encoded(text, QStringConverter::Utf16LE, false), lamp);
        row("UTF-16, high byte first, unmarked", encoded(text, QStringConverter::Utf16BE, false), lamp);
        row("XML",
            "<?xml version=\"1.0\"?><plist><dict><key>name</key><string>Stehlampe f\xC3\xBCr \xCE\xA9</string>"
            "<key>number</key><integer>1</integer></dict></plist>",
            lamp);
        row("nothing", "", {});
        row("only a comment", "/* \"a\" = \"b\"; */ // \"c\" = \"d\";", {});
        row("comments between", "/* a */ a /* b */ = /* c */ b // d\n;", {{u"a"_s, u"b"_s}});
        row("plain words", "NSCamera_Usage = see-it.now;", {{u"NSCamera_Usage"_s, u"see-it.now"_s}});
        row("a key alone", "\"a b\";", {{u"a b"_s, u"a b"_s}});
        row("braces", "{ a = b; c = d; }", {{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}});
        row("single quotes", "'a' = 'it\"s';", {{u"a"_s, u"it\"s"_s}});
        row("escapes", "\"a\" = \"1\\n2\\t3\\\"4\\\\5\\U00e46\\u00DF7\\q\";", {{u"a"_s, u"1\n2\t3\"4\\5ä6ß7q"_s}});
        row("an escape at the end", "\"a\" = \"\\u\";", {{u"a"_s, u"u"_s}});
        row("a mark in a text", "a = \"/* no */ // no ; = \";", {{u"a"_s, u"/* no */ // no ; = "_s}});
        row("the last of two", "a = b; a = c;", {{u"a"_s, u"c"_s}});
    }
    void readsPairs()
    {
        QFETCH(QByteArray, bytes);
        const auto table = readStringsTable(bytes);
        QVERIFY(table.has_value());
        QTEST(*table, "table");
    }

    void refusesWhatIsDamaged_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("no end") << "\"a\" = \"b\""_ba;
        QTest::newRow("an open quotation") << "\"a\" = \"b;"_ba;
        QTest::newRow("an escape and nothing") << "\"a\" = \"b\\"_ba;
        QTest::newRow("no text") << "a = ;"_ba;
        QTest::newRow("no key") << "= b;"_ba;
        QTest::newRow("an open brace") << "{ a = b;"_ba;
        QTest::newRow("more behind the brace") << "{ a = b; } c = d;"_ba;
        QTest::newRow("no text at all") << "\xff\x00\xfe\x80\x81"_ba;
        QTest::newRow("a property list that is none") << "bplist00garbage"_ba;
        QTest::newRow("too long") << QByteArray("a = b; ").repeated(200'000);
        QTest::newRow("too many") << [] {
            QByteArray pairs;
            for (int i = 0; i < 30'000; ++i)
                pairs += "a" + QByteArray::number(i) + "=b;";
            return pairs;
        }();
    }
    void refusesWhatIsDamaged()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(!readStringsTable(bytes));
    }

    void readsTheFolders()
    {
        QStringList asked;
        const LocalizedInfo info = readLocalizedInfo(
            {u"de.lproj"_s, u"Base.lproj"_s, u"fr.lproj"_s, u"data"_s, u"Info.plist"_s}, [&asked](const QString &path) {
                asked += path;
                return path.startsWith("fr"_L1) ? QByteArray() : "a = b;"_ba;
            });
        QCOMPARE(asked, (QStringList{u"de.lproj/InfoPlist.strings"_s, u"Base.lproj/InfoPlist.strings"_s,
                                     u"fr.lproj/InfoPlist.strings"_s}));
        QCOMPARE(info.keys(), (QStringList{u"Base"_s, u"de"_s}));
    }
};

QTEST_GUILESS_MAIN(StringsTableTest)
#include "StringsTableTest.moc"
