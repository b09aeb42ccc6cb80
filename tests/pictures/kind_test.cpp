#include "hosts/pictures/picture_kind.h"

#include "samples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace tavo::pictures {
namespace {

using namespace std::string_literals;

TEST(PictureKinds, Each_kind_has_one_row_and_a_sample)
{
    std::set<PictureKind> sampled, listed;
    for (const Sample& sample : Samples())
        sampled.insert(sample.Kind);
    for (const KindRules& rules : Kinds_All())
        EXPECT_TRUE(listed.insert(rules.Kind).second) << rules.Reader;
    EXPECT_EQ(sampled, listed);
}

TEST(PictureKinds, The_beginning_of_each_sample_tells_its_kind)
{
    for (const Sample& sample : Samples()) {
        const KindRules* const rules =
            Kind_Find(std::string_view(sample.Bytes).substr(0, headBytes), sample.Bytes.size());
        ASSERT_NE(rules, nullptr) << sample.Name;
        EXPECT_EQ(rules->Kind, sample.Kind) << sample.Name;
    }
}

TEST(PictureKinds, What_is_no_picture_has_no_kind)
{
    const std::string rows[] = {
        "",
        "B",
        "BM",
        "BMW is a maker of cars, and this is a longer text about them and others.",
        "GIF88a",
        "P",
        "P7\n",
        "P1x",
        "Plain words.",
        "<html><body>words</body></html>",
        "words before <svg",
        "\0\0\1\0\0\0\0"s,
        "\0\0\2\0\0\0\0"s,
        "\0\0\3\0\1\0\0"s,
        std::string(8, '\0'),
        std::string(5000, '\0'),
        "\x89PNG\r\n",
        "RIFF\4\0\0\0WAVEfmt "s,
        "PK\3\4",
        "\x7f"
        "ELF",
        "%PDF-1.7",
    };
    for (const std::string& bytes : rows)
        EXPECT_EQ(Kind_Find(bytes, bytes.size()), nullptr) << bytes;
}

TEST(PictureKinds, A_format_without_a_mark_must_fit_the_size_of_the_file)
{
    struct Row {
        PictureKind Kind;
        std::size_t Behind; // bytes behind the last dot
    };
    for (const Row& row : {Row{PictureKind::Tga, 26}, Row{PictureKind::Wbmp, 0}}) {
        const auto sample = std::ranges::find(Samples(), row.Kind, &Sample::Kind);
        const std::size_t needed = sample->Bytes.size() - row.Behind;
        EXPECT_NE(Kind_Find(sample->Bytes, needed), nullptr) << sample->Name;
        EXPECT_EQ(Kind_Find(sample->Bytes, needed - 1), nullptr) << sample->Name;
    }
}

} // namespace
} // namespace tavo::pictures
