#include "DeskFixture.h"
#include "HelpTables.h"

#include "deskLanguage.h"
#include "resourceLibrary.h"

#include <QDialog>
#include <QFile>
#include <QLocale>
#include <QPushButton>

namespace orvex::testing {

namespace {

// As the program starts with this setting, before there is a window.
struct GermanStart {
    GermanStart() {
        DeskSettings settings;
        settings.setText(DeskSettings::kLanguage, "de");
        startLanguage(settings);
        loadResourceDll(L"ORVEXRes.dll");
    }
};

class GermanDesk : GermanStart, public DeskFixture {};

TEST(DeskLanguage, isTheOneChosenElseTheFirstOfTheUsersThatThereIs) {
    EXPECT_EQ(languageFor("de", {"en-US"}), "de");
    EXPECT_EQ(languageFor("en", {"de-DE"}), "en");
    EXPECT_EQ(languageFor("", {"fr-FR", "de-AT", "en"}), "de");
    EXPECT_EQ(languageFor("", {"de_CH"}), "de");
    EXPECT_EQ(languageFor("xx", {"fr"}), "en");
    EXPECT_EQ(languageFor("", {"C"}), "en");
}

TEST_F(GermanDesk, asksInGermanAndWritesWhatAScriptPlaysAnywhere) {
    std::string typed;
    play({
        openPlan(),
        type("-MLEDIT"),
        [this] { EXPECT_TRUE(prompt().startsWith(u"Werkzeug eingeben [CC/OC/")); },
        clickKeyword("CA"),
        [this] { EXPECT_TRUE(prompt().contains(u"Multilinie am ersten Punkt wählen")); },
        type("2400,0\n3600,0"),
        key(Qt::Key_Return),
        type("MLINE\nS\n1,5"),
        [this] { EXPECT_TRUE(lastLine().contains("1.5")) << lastLine().toStdString(); },
        type("1.5\n0,20000\n500.5,20000"),
        key(Qt::Key_Return),
        trigger("save"),
        [&] { typed = script(); },
    });
    const std::string saved = readFile(plan);
    EXPECT_TRUE(saved != original);
    // What was typed there is the same by an English script.
    EXPECT_TRUE(saved == bytesByScript("-MLEDIT\nCA\n2400,0\n3600,0\n\n"
                                       "MLINE\nS\n1.5\n0,20000\n500.5,20000\n\n"));
    EXPECT_THAT(typed, ::testing::StartsWith("-MLEDIT\nCA\n2400,0\n3600,0\n\nMLINE\nS\n"));
}

TEST_F(GermanDesk, showsTheModulesDialogsInGermanAndTheSettingForTheNextStart) {
    play({
        type("MLSTYLE"),
        inDialog<QDialog>([](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Multilinienstil");
            QStringList buttons;
            for (const QPushButton* const button : dialog.findChildren<QPushButton*>()) {
                buttons << button->text();
            }
            EXPECT_TRUE(buttons.contains(u"&Schließen"));
            dialog.reject();
        }),
        [this] {
            auto* const choice = window->findChild<QAction*>("languageen");
            EXPECT_FALSE(choice->isChecked());
            choice->trigger();
            EXPECT_EQ(DeskSettings().text(DeskSettings::kLanguage), "en");
        },
    });
    EXPECT_TRUE(QFile::exists(":/ORVEXRes/128.svg"));
    EXPECT_EQ(QLocale().toString(1.5), "1.5");
}

// German keyboards name some keys otherwise than shortcuts do.
QString germanKey(const QKeySequence& key) {
    QString text = key.toString(QKeySequence::PortableText);
    for (const auto& [english, german] : {std::pair("Ctrl", "Strg"), std::pair("Shift", "Umschalt"),
                                          std::pair("Backspace", "Rücktaste")}) {
        text.replace(english, QString::fromUtf8(german));
    }
    return text == "Del" ? QStringLiteral("Entf") : text;
}

TEST_F(GermanDesk, hasTheHelpInGermanWithAllThatTheTablesHave) {
    expectLinksLeadSomewhere();
    for (const QString& page : helpPages()) {
        EXPECT_TRUE(helpText(page).contains(" der ")) << page.toStdString();
    }
    expectHelpHasAll(*window, "Befehl", "Taste", germanKey);
}

} // namespace

} // namespace orvex::testing
