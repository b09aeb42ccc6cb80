#include "toolkit/caption.h"

#include "toolkit/unicode_case.h"
#include "toolkit/utf8.h"

namespace tavo {

std::string Caption_Plain(std::string_view caption)
{
    std::string plain;
    for (std::size_t pos = 0; pos < caption.size(); ++pos) {
        if (caption[pos] == '&' && ++pos == caption.size())
            break;
        plain += caption[pos];
    }
    return plain;
}

char32_t Caption_Mnemonic(std::string_view caption)
{
    std::size_t pos = caption.find('&');
    while (pos != std::string_view::npos && ++pos < caption.size()) {
        if (caption[pos] != '&')
            return SimpleFold(NextChar(caption, pos).Code);
        pos = caption.find('&', pos + 1);
    }
    return 0;
}

} // namespace tavo
