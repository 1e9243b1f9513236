#pragma once

#include <QString>
#include <QStringList>

namespace orvex {

// What was typed before, to be fetched again. A walk through it starts after the latest and keeps
// the line that was being typed as its end.
class InputHistory {
public:
    static constexpr int kMost = 200;

    // Ends the walk. Empty lines and a repetition of the latest aren't kept.
    void add(const QString& line);

    // The line before or after; `typed` is what stands in the field now. At either end it stays.
    QString earlier(const QString& typed);
    QString later(const QString& typed);

private:
    QStringList m_lines;
    int m_place = 0; // index in m_lines; its size for the line being typed
    QString m_typed;
};

} // namespace orvex
