// SPDX-License-Identifier: MIT
#include "validator/bundle/PropertyList.h"
#include "tests/doubles/ScriptedFiles.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class PropertyListTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(runScript(u"make_property_lists.py"_s, {m_lists.path()})); }

    void readsEveryForm_data()
    {
        QTest::addColumn<QString>("form");
        for (const char *form :
             {"xml", "binary", "xml with byte order mark", "xml in utf-16", "xml in big-endian utf-16"})
            QTest::newRow(form) << QString::fromUtf8(form);
    }
    void readsEveryForm()
    {
        QFETCH(QString, form);
        const auto list = propertyListDictionary(contents(form));
        QVERIFY(list);
        QCOMPARE(list->size(), 9);
        QCOMPARE(list->value(u"text"_s), QVariant(u"größer"_s));
        QCOMPARE(list->value(u"number"_s), QVariant(42LL));
        QCOMPARE(list->value(u"negative"_s), QVariant(-7LL));
        QCOMPARE(list->value(u"real"_s), QVariant(1.5));
        QCOMPARE(list->value(u"yes"_s), QVariant(true));
        QCOMPARE(list->value(u"data"_s), QVariant(QByteArray("\0\1", 2)));
        QCOMPARE(list->value(u"date"_s), QVariant(QDateTime(QDate(2014, 5, 13), QTime(16, 53, 20), Qt::UTC)));
        QCOMPARE(list->value(u"array"_s), QVariant(QVariantList{u"a"_s, QVariantMap{{u"inner"_s, u"b"_s}}}));
        QCOMPARE(list->value(u"empty"_s), QVariant(QVariantMap()));
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("fault");
        for (const char *fault : {"xml without its end",
                                  "an array",
                                  "a text",
                                  "nothing",
                                  "noise",
                                  "binary mark only",
                                  "binary cut off",
                                  "refers to itself",
                                  "refers in a circle",
                                  "refers to what is not there",
                                  "more objects than bytes",
                                  "table beyond the file",
                                  "text beyond the file",
                                  "unfolds without end",
                                  "one long text many times",
                                  "deep",
                                  "deep xml",
                                  "endless xml",
                                  "too long",
                                  "zero in a binary key",
                                  "zero in a binary utf-16 key",
                                  "zero in an xml key",
                                  "zero referred to in an xml key",
                                  "zero referred to in hexadecimal",
                                  "number as a binary key"})
            QTest::newRow(fault) << QString::fromUtf8(fault);
    }
    void refuses()
    {
        QFETCH(QString, fault);
        QVERIFY(!propertyListDictionary(contents(fault)));
    }

    void boundsWhatABinaryListUnfoldsTo_data()
    {
        QTest::addColumn<QList<QByteArray>>("objects");
        QTest::addColumn<PropertyListLimits>("limits");
        QTest::addColumn<bool>("bounded");
        const PropertyListLimits limits;
        const QByteArray empty("\xA0", 1);
        const auto arrayOf = [](const QByteArray &members) -> QByteArray {
            return QByteArray(1, static_cast<char>(0xA0 | members.size())) + members;
        };
        const QList<QByteArray> shared{arrayOf("\1\3"), arrayOf("\2"), empty, arrayOf("\1")};
        QTest::newRow("an empty array") << QList{empty} << PropertyListLimits{.depth = 1} << true;
        QTest::newRow("an array that holds itself") << QList{arrayOf(QByteArray(1, '\0'))} << limits << false;
        QTest::newRow("two arrays that hold each other")
            << QList{arrayOf("\1"), arrayOf(QByteArray(1, '\0'))} << limits << false;
        QTest::newRow("a part that is met twice, as deep as may be")
            << shared << PropertyListLimits{.depth = 4} << true;
        QTest::newRow("a part that is met twice, a step too deep") << shared << PropertyListLimits{.depth = 3} << false;
        QTest::newRow("a part that is met twice, as many values as may be")
            << shared << PropertyListLimits{.values = 6} << true;
        QTest::newRow("a part that is met twice, one value more") << shared << PropertyListLimits{.values = 5} << false;
        // The letter in front is the marker: S a text of three bytes, b two 16-bit units, B two bytes of data.
        const QList<QByteArray> twice{arrayOf("\1\1"), "Sabc"};
        QTest::newRow("a text that is met twice, as long as may be")
            << twice << PropertyListLimits{.expandedBytes = 6} << true;
        QTest::newRow("a text that is met twice, one byte more")
            << twice << PropertyListLimits{.expandedBytes = 5} << false;
        QTest::newRow("a text with a zero") << QList{QByteArray("Sa\0c", 4)} << limits << false;
        QTest::newRow("a text of 16-bit units") << QList{QByteArray("b\0a\1\0", 5)} << limits << true;
        QTest::newRow("a text of 16-bit units with a zero") << QList{QByteArray("b\0a\0\0", 5)} << limits << false;
        QTest::newRow("data with a zero") << QList{QByteArray("Ba\0", 3)} << limits << true;
    }
    void boundsWhatABinaryListUnfoldsTo()
    {
        QFETCH(QList<QByteArray>, objects);
        QFETCH(PropertyListLimits, limits);
        QByteArray list("bplist00");
        QByteArray offsets;
        for (const QByteArray &object : std::as_const(objects)) {
            offsets += static_cast<char>(list.size());
            list += object;
        }
        const auto number = [](qsizetype value) -> QByteArray {
            return QByteArray(7, '\0') + static_cast<char>(value);
        };
        const QByteArray trailer =
            QByteArray(6, '\0') + "\1\1" + number(objects.size()) + number(0) + number(list.size());
        const QByteArray file = list + offsets + trailer;
        QTEST(binaryPlistIsBounded(file, limits), "bounded");
    }

    void readsXmlUpToItsLimits_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("read");
        // Around the values: the tags of the plist, the dictionary, its key and the array.
        const PropertyListLimits limits;
        const auto texts = [](qsizetype count) { return QByteArray("<string/>").repeated(count); };
        const qsizetype tags = 2 * limits.values;
        constexpr qsizetype around = 8;
        QTest::newRow("as many tags as may be") << QByteArray("<array>" + texts(tags - around) + "</array>") << true;
        QTest::newRow("one tag more") << QByteArray("<array>" + texts(tags - around + 1) + "</array>") << false;
        const qsizetype containers = limits.depth * 100;
        QTest::newRow("as many lists as may be")
            << QByteArray("<array>" + QByteArray("<dict/>").repeated(containers - 2) + "</array>") << true;
        QTest::newRow("one list more") << QByteArray("<array>" + QByteArray("<dict/>").repeated(containers - 1) +
                                                     "</array>")
                                       << false;
    }
    void readsXmlUpToItsLimits()
    {
        QFETCH(QByteArray, value);
        const auto list = propertyListDictionary("<plist><dict><key>a</key>" + value + "</dict></plist>");
        QTEST(list.has_value(), "read");
        if (list)
            QVERIFY(list->value(u"a"_s).toList().size() > 1000);
    }

    void boundsTheDepthOfXml_data()
    {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<bool>("read");
        QTest::newRow("beside each other") << QByteArray("<dict></dict>") << true;
        QTest::newRow("inside each other") << QByteArray("<dict><key>a</key>") << false;
        QTest::newRow("closed in a comment") << QByteArray("<dict><!-- > </dict> --></dict>") << false;
        QTest::newRow("closed in a quotation") << QByteArray("<dict a=\"> </dict>\"></dict>") << false;
        QTest::newRow("closed in quotations of both kinds")
            << QByteArray("<dict a='\"' b=\"> </dict>\"></dict>") << false;
        QTest::newRow("closed in a tag") << QByteArray("<dict </dict></dict>") << false;
    }
    void boundsTheDepthOfXml()
    {
        QFETCH(QByteArray, item);
        const PropertyListLimits limits{.depth = 16, .containers = 200'000};
        const QByteArray list = "<plist><dict><key>a</key><array>" + item.repeated(2000) + "</array></dict></plist>";
        QTEST(propertyListDictionary(list, limits).has_value(), "read");
    }

    void expandsNoEntities()
    {
        const auto list = propertyListDictionary(contents(u"entities"_s));
        QVERIFY(!list || !list->value(u"text"_s).toString().contains(u"eeee"));
    }

private:
    QByteArray contents(const QString &name) const
    {
        QFile file(m_lists.filePath(name + u".plist"_s));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("the fixture is missing");
        return file.readAll();
    }

    QTemporaryDir m_lists;
};

QTEST_GUILESS_MAIN(PropertyListTest)
#include "PropertyListTest.moc"
