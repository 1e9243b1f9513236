#pragma once

#include <QString>
#include <QStringList>

#include <span>

namespace orvex {

class DeskSettings;

// A language of the window's texts. Keywords, commands and numbers are the same in each.
struct DeskLanguage {
    const char* code; // as settings have it, and the folders of resource libraries
    const char* name; // in itself
};

// English, in which the texts are written, first.
std::span<const DeskLanguage> deskLanguages();

// What settings say, where that is a language there is, else the first one of the user's languages
// ("de-AT") that there is; English at the last.
QString languageFor(const QString& setting, const QStringList& usersLanguages);

// Gives all windows that are made from now on the language of the settings; once, at the start.
// Numbers are read and written with a point from then on.
void startLanguage(const DeskSettings& settings);

} // namespace orvex
