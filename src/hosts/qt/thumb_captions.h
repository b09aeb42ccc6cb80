#pragma once

#include <QFont>
#include <QString>

#include <string>
#include <unordered_map>

namespace tavo {

// Captions cut to one width in one font, with dots in their middle. To measure
// a text costs more than to paint it, and the same ones are painted again
// while the grid scrolls: it keeps those of the last pages.
class CaptionCuts {
public:
    // What is shown of `text` in so many pixels.
    const QString& Of(const std::string& text, const QFont& font, int room);
    // Forgets the rest once there are more than so many.
    void HoldTo(std::size_t most);

private:
    QFont font_;
    int room_ = 0;
    std::unordered_map<std::string, QString> cuts_;
};

} // namespace tavo
