// SPDX-License-Identifier: MIT
#include "app/AboutPopupContentView.h"
#include "app/PopupContentView.h"
#include "app/SettingsViewController.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "tool/AlertContentView.h"
#include "ui_AboutPopupContentView.h"
#include "ui_PopupContentView.h"
#include "ui_SettingsViewController.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QRegularExpression>
#include <QTest>
#include <QTextDocument>
#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

/// All texts of a table whose key passes the filter.
QStringList textsOf(const QString &language, const QRegularExpression &keys)
{
    QTranslator table;
    if (!table.load(u":/strings/lumora_"_s + language + u".qm"_s))
        return {};
    QFile source(QStringLiteral(LUMORA_SOURCE_DIR "/resources/strings/lumora_") + language + u".ts"_s);
    if (!source.open(QIODevice::ReadOnly))
        return {};
    QStringList texts;
    static const QRegularExpression id(u"<message id=\"([^\"]+)\""_s);
    auto matches = id.globalMatch(QString::fromUtf8(source.readAll()));
    while (matches.hasNext()) {
        const QString key = matches.next().captured(1);
        if (keys.match(key).hasMatch())
            texts << table.translate(nullptr, key.toUtf8().constData());
    }
    return texts;
}

QColor colorOf(const QLabel *label)
{
    return label->palette().color(QPalette::WindowText);
}

} // namespace

class PopupContentTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
        QCoreApplication::setApplicationVersion(u"9.8.7"_s);
    }

    void messageIsSetUp()
    {
        const AlertContentView view;
        QCOMPARE(view.titleLabel()->font(), latoBold(15));
        QCOMPARE(colorOf(view.titleLabel()), palette::chromeText);
        QCOMPARE(view.messageLabel()->font(), latoRegular(13));
        QCOMPARE(colorOf(view.messageLabel()), palette::chromeText);
        QCOMPARE(view.closeButton()->text(), qtTrId("CLOSE"));
        QCOMPARE(view.closeButton()->icon(), NamedImage(u"button_icon_close"_s));
        QVERIFY(!view.closeButton()->icon().isNull());
        QCOMPARE(view.closeButton()->normalColor(), palette::errorLight);
        QCOMPARE(view.closeButton()->hoverColor(), palette::errorDark);
        QCOMPARE(view.closeButton()->activeColor(), palette::errorDark);
    }

    void helpTakesWhatItIsGiven()
    {
        PopupContentView view(m_services.urlOpener);
        QCOMPARE(view.outlets().popupTitleField->font(), latoBold(15));
        QCOMPARE(view.outlets().popupTextField->font(), latoRegular(13));
        QCOMPARE(colorOf(view.outlets().popupTitleField), palette::successLight);
        QCOMPARE(colorOf(view.outlets().popupTextField), palette::chromeText);
        view.setTitle(u"Title"_s);
        view.setText(u"Text <b>as it is</b>"_s);
        view.setIcon(NamedImage(u"help_icon_icons"_s));
        view.setColor(palette::devices);
        QCOMPARE(view.outlets().popupTitleField->text(), u"Title"_s);
        QCOMPARE(view.outlets().popupTextField->text(), u"Text <b>as it is</b>"_s);
        QCOMPARE(view.outlets().popupTextField->textFormat(), Qt::PlainText);
        QCOMPARE(view.outlets().popupIconView->image(), NamedImage(u"help_icon_icons"_s));
        QCOMPARE(colorOf(view.outlets().popupTitleField), palette::devices);
        QCOMPARE(colorOf(view.outlets().popupTextField), palette::chromeText);
        QCOMPARE(view.outlets().popupTitleSeperator->backgroundColor(), palette::devices);
        QCOMPARE(view.outlets().popupTextSeperator->backgroundColor(), palette::devices);
    }

    void buttons_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("textKey");
        QTest::addColumn<QString>("icon");
        QTest::addColumn<QColor>("normal");
        QTest::addColumn<QColor>("hover");
        QTest::addColumn<QString>("addressKey");
        QTest::newRow("bug report") << u"bugreportButton"_s << u"HELP_BUG_REPORT"_s << u"button_icon_bugreport"_s
                                    << palette::errorLight << palette::errorDark << u"ABOUT_BUG_REPORT_WEB"_s;
        QTest::newRow("feature request") << u"featurerequestButton"_s << u"HELP_FEATURE_REQUEST"_s
                                         << u"button_icon_featurerequest"_s << palette::successLight
                                         << palette::successDark << u"ABOUT_FEATURE_REQUEST_WEB"_s;
        QTest::newRow("feedback") << u"feedbackButton"_s << u"HELP_FEEDBACK"_s << u"button_icon_feedback"_s
                                  << palette::infoLight << palette::infoDark << u"ABOUT_QUESTIONS_WEB"_s;
        QTest::newRow("social") << u"twitterButton"_s << u"ABOUT_TWITTER"_s << u"button_icon_twitter"_s
                                << palette::socialBlue << palette::socialBlueDark << u"ABOUT_TWITTER_WEB"_s;
        QTest::newRow("network") << u"facebookButton"_s << u"ABOUT_FACEBOOK"_s << u"button_icon_facebook"_s
                                 << palette::networkNavy << palette::networkNavyDark << u"ABOUT_FACEBOOK_WEB"_s;
        QTest::newRow("mail") << u"mailButton"_s << u"ABOUT_MAIL"_s << u"button_icon_mail"_s << palette::errorLight
                              << palette::errorDark << u"ABOUT_MAIL_WEB"_s;
    }
    void buttons()
    {
        QFETCH(QString, button);
        QFETCH(QString, textKey);
        QFETCH(QString, icon);
        QFETCH(QString, addressKey);
        PopupContentView help(m_services.urlOpener);
        AboutPopupContentView about(m_services.urlOpener);
        auto *found = help.findChild<IconButton *>(button);
        if (found == nullptr)
            found = about.findChild<IconButton *>(button);
        QVERIFY(found != nullptr);
        QCOMPARE(found->text(), qtTrId(textKey.toUtf8().constData()));
        QVERIFY(found->text() != textKey);
        QCOMPARE(found->icon(), NamedImage(icon));
        QVERIFY(!found->icon().isNull());
        QTEST(found->normalColor(), "normal");
        QTEST(found->hoverColor(), "hover");
        QTEST(found->activeColor(), "hover");
        m_services.urlOpener.opened.clear();
        found->click();
        QCOMPARE(m_services.urlOpener.opened, QList<QUrl>{QUrl(qtTrId(addressKey.toUtf8().constData()))});
        QVERIFY(!m_services.urlOpener.opened.first().scheme().isEmpty());
    }

    void aboutNamesVersionAndMaker()
    {
        const AboutPopupContentView view(m_services.urlOpener);
        QCOMPARE(view.outlets().versionLabel->text(), u"Lumora (9.8.7)"_s);
        QCOMPARE(view.outlets().versionLabel->font(), latoBold(13));
        QCOMPARE(view.outlets().developerLabel->text(), u"KESTREL interactive"_s);
        QCOMPARE(view.outlets().developerLabel->font(), latoRegular(13));
        QCOMPARE(view.outlets().aboutAppLabel->text(), qtTrId("ABOUT_TEXT"));
        QCOMPARE(view.outlets().seperatorViewOne->backgroundColor(), palette::separator);
        QCOMPARE(colorOf(view.outlets().versionLabel), palette::chromeText);
    }

    void contactPanel()
    {
        const SettingsViewController controller(m_services.services());
        const auto &outlets = controller.outlets();
        QCOMPARE(outlets.appTitleLabel->text(), u"Lumora 9.8.7"_s);
        QCOMPARE(outlets.appTitleLabel->font(), latoBold(18));
        QCOMPARE(outlets.appIconImageView->image(), NamedImage(u"info_app_icon"_s));
        QCOMPARE(outlets.contactMailButton->text(), u"Mail"_s);
        QCOMPARE(outlets.contactTwitterButton->text(), u"Twitter"_s);
        QCOMPARE(outlets.contactMailButton->normalColor(), palette::validator);
        QCOMPARE(outlets.contactMailButton->hovercolor(), palette::validatorBorder);
        QVERIFY(outlets.infoLabel->alignment().testFlag(Qt::AlignHCenter));
        QCOMPARE(controller.view()->palette().color(QPalette::Window), QColor(Qt::white));
        QTextDocument shown;
        shown.setHtml(outlets.infoLabel->text());
        QCOMPARE(
            shown.toPlainText(),
            u"We are glad to help\nWrite to support@lumora.example, message @lumora.example or find us on Facebook."_s);
    }

    void contactMail()
    {
        SettingsViewController controller(m_services.services());
        m_services.urlOpener.opened.clear();
        m_services.urlOpener.application = u"post.desktop"_s;
        QTest::ignoreMessage(QtInfoMsg, "URL: post.desktop");
        controller.contactMailButtonPressed();
        QCOMPARE(m_services.urlOpener.opened,
                 QList<QUrl>{QUrl(u"mailto:support@lumora.example?Subject=HALLO&body=Hallooootjes"_s)});
        controller.contactTwitterButtonPressed();
        QCOMPARE(m_services.urlOpener.opened.last(), QUrl(qtTrId("ABOUT_TWITTER_WEB")));
    }

    void contactTextRuns_data()
    {
        QTest::addColumn<QString>("second");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QList<int>>("boldAt");
        QTest::newRow("all three") << u"[MAIL] [TWITTER] [FACEBOOK]"_s << u"Hi\nm@x @t Facebook"_s
                                   << QList<int>{0, 3, 7, 10};
        QTest::newRow("none: unchanged") << u"Just write"_s << u"Hi\nJust write"_s << QList<int>{0};
        QTest::newRow("only the first of each is bold")
            << u"[FACEBOOK], [FACEBOOK]"_s << u"Hi\nFacebook, Facebook"_s << QList<int>{0, 3};
    }
    void contactTextRuns()
    {
        QFETCH(QString, second);
        QFETCH(QList<int>, boldAt);
        const StyledText text = contactText(u"Hi"_s, second, {u"m@x"_s, u"@t"_s, u"Facebook"_s});
        QTEST(text.text(), "expected");
        QList<int> starts;
        for (const StyledText::Run &run : text.runs()) {
            starts << static_cast<int>(run.start);
            QCOMPARE(run.font, run.start == 0 ? latoBold(18) : latoBold(13));
        }
        QCOMPARE(starts, boldAt);
    }

    void htmlShowsEveryCharacterAsItIs()
    {
        StyledText text(u"a <b> & \"c\"  d\ne"_s);
        text.setFontOfFirst(u"<b>"_s, latoBold(18));
        text.setFontOfFirst(u"nowhere"_s, latoBold(18));
        text.setFontOfFirst(QString(), latoBold(18));
        QCOMPARE(text.runs().size(), 1);
        QTextDocument document;
        document.setHtml(text.toHtml());
        QCOMPARE(document.toPlainText(), text.text());
    }

    void textsFitTheirViews_data()
    {
        QTest::addColumn<QString>("language");
        const QStringList languages = availableLanguages();
        QVERIFY(languages.contains(u"de"_s));
        for (const QString &language : languages)
            QTest::newRow(qPrintable(language)) << language;
    }
    void textsFitTheirViews()
    {
        QFETCH(QString, language);
        PopupContentView help(m_services.urlOpener);
        help.layout()->activate();
        QLabel *text = help.outlets().popupTextField;
        const QStringList helps = textsOf(language, QRegularExpression(u"^HELP_[A-Z_]+_TEXT$"_s));
        QCOMPARE(helps.size(), 11);
        for (const QString &content : helps) {
            help.setText(content);
            QVERIFY2(text->heightForWidth(text->width()) <= text->height(), qPrintable(content));
        }

        AlertContentView alert;
        alert.layout()->activate();
        const QStringList messages = textsOf(language, QRegularExpression(u"_ALERT_MESSAGE$|^SNIPPETS_MESSAGE$"_s));
        QVERIFY(messages.size() >= 8);
        for (const QString &content : messages) {
            alert.setTitle(u"Title"_s, content);
            alert.layout()->activate();
            QLabel *message = alert.messageLabel();
            QVERIFY2(message->heightForWidth(message->width()) <= message->height(), qPrintable(content));
        }
    }

private:
    RecordingServices m_services;
};

QTEST_MAIN(PopupContentTest)
#include "PopupContentTest.moc"
