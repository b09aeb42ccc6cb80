#include "renamelist/name_builder.h"

#include "core/state.h"
#include "fileactions/mp3_file.h"
#include "renamelist/counters.h"

namespace tavo {

NameBuilder::NameBuilder(std::string_view nameTemplate, std::string_view extTemplate,
                         const SharedState& state, Files& files)
    : files_(&files), nameTemplate_(nameTemplate), extTemplate_(extTemplate), style_(state.nnStyle),
      digits_(state.nnDigits), start_(Cnt_Start(state.nnStart, state.nnStyle))
{
    Tmpl_Scan(nameTemplate_, nameFlags_);
    Tmpl_Scan(extTemplate_, extFlags_);
}

void NameBuilder::ApplyTag(const std::string& fullPath)
{
    MP3Tag tag;
    MP3_Tag_Read(*files_, fullPath, tag);
    Tmpl_ApplyTag(newName_, tag, digits_, nameFlags_);
    Tmpl_ApplyTag(extText_, tag, digits_, extFlags_);
}

void NameBuilder::Build(const std::string& fullPath, std::string_view baseName,
                        std::string_view extension, std::int64_t counter)
{
    const std::string counterText = Counts() ? Cnt_Text(counter, style_, digits_) : std::string();
    newName_ = nameTemplate_;
    extText_ = extTemplate_;
    if (nameFlags_[4] || extFlags_[4])
        ApplyTag(fullPath);
    if (nameFlags_[0])
        Tmpl_ApplyOld(newName_, baseName, extension, counterText, nameFlags_);
    if (extFlags_[0])
        Tmpl_ApplyOld(extText_, baseName, extension, counterText, extFlags_);
    if (!extText_.empty())
        newName_.append(1, '.').append(extText_);
}

} // namespace tavo
