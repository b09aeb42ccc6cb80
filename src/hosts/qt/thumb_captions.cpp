#include "hosts/qt/thumb_captions.h"

#include "hosts/qt/qt_text.h"

#include <QFontMetrics>

#include <algorithm>

namespace tavo {

namespace {

const QChar dots(0x2026);

// Without what stands too far from both ends to be seen in any case, as if all
// letters were narrow ones: in a script that is hard to measure a long text
// costs the most.
QString Ends_Of(const QString& text, const QFontMetrics& metrics, int room)
{
    const int narrow = std::max(1, metrics.horizontalAdvance('i'));
    const qsizetype half = std::max(0, room) / narrow / 2 + 2;
    return text.size() > 2 * half ? text.first(half) + dots + text.last(half) : text;
}

} // namespace

const QString& CaptionCuts::Of(const std::string& text, const QFont& font, int room)
{
    if (room != room_ || font != font_) {
        cuts_.clear();
        room_ = room;
        font_ = font;
    }
    const auto [entry, isNew] = cuts_.try_emplace(text);
    if (isNew) {
        const QFontMetrics metrics(font);
        entry->second =
            metrics.elidedText(Ends_Of(ToQtLine(text), metrics, room), Qt::ElideMiddle, room);
    }
    return entry->second;
}

void CaptionCuts::HoldTo(std::size_t most)
{
    if (cuts_.size() > most)
        cuts_.clear();
}

} // namespace tavo
