// SPDX-License-Identifier: MIT
#include "desktop/storage/PropertyList.h"

#include "fixtures/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <plist/plist.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

namespace velto {

namespace {

std::string document(const std::string& entries)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" + entries + "</dict></plist>\n";
}

std::optional<StoredValue> valueIn(const std::string& element)
{
    const auto list = PropertyList::parse(document("<key>it</key>" + element));
    EXPECT_TRUE(list) << element;
    return list ? list->value("it") : std::nullopt;
}

std::string binary(plist_t root)
{
    char* bytes = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(root, &bytes, &length);
    std::string result{bytes, length};
    std::free(bytes);
    plist_free(root);
    return result;
}

} // namespace

TEST(PropertyListTest, EveryTypeComesBackAsItWas)
{
    const StoredValue values[]{
        std::int64_t{0},
        std::int64_t{25},
        std::int64_t{-7},
        std::numeric_limits<std::int64_t>::max(),
        std::numeric_limits<std::int64_t>::min(),
        true,
        false,
        0.25F,
        1.7F,
        -3.5F,
        1.0F,
        0.333333343F,
        1e-30F,
        std::numeric_limits<float>::max(),
        std::numeric_limits<float>::denorm_min(),
        std::numeric_limits<float>::infinity(),
        -std::numeric_limits<float>::infinity(),
        std::string{},
        std::string{"  spaces at both ends  "},
        std::string{"<&>\"' ]]> &amp; \n\t"},
        std::string{"Größe 25\u202f\u20ac \U0001F345"},
        Blob{},
        Blob{0x22, 'G', 'l', 'a', 's', 's', 0x22},
        Blob(1000, 0),
    };
    for (const StoredValue& value : values) {
        PropertyList written;
        written.set("it", value);

        const auto read = PropertyList::parse(written.toXml());

        ASSERT_TRUE(read) << written.toXml();
        EXPECT_EQ(read->value("it"), value) << written.toXml();
    }
}

TEST(PropertyListTest, ANumberThatIsNoneStaysNone)
{
    PropertyList written;
    written.set("it", std::numeric_limits<float>::quiet_NaN());

    const auto value = PropertyList::parse(written.toXml())->value("it");

    ASSERT_TRUE(value && std::holds_alternative<float>(*value));
    EXPECT_TRUE(std::isnan(std::get<float>(*value)));
}

TEST(PropertyListTest, TypesAreKeptApart)
{
    EXPECT_EQ(valueIn("<integer>1</integer>"), StoredValue{std::int64_t{1}});
    EXPECT_EQ(valueIn("<real>1</real>"), StoredValue{1.0F});
    EXPECT_EQ(valueIn("<true/>"), StoredValue{true});
    EXPECT_EQ(valueIn("<string>1</string>"), StoredValue{std::string{"1"}});
    EXPECT_EQ(valueIn("<data>MQ==</data>"), (StoredValue{Blob{'1'}}));
}

TEST(PropertyListTest, WhatIsNoStoredValueIsAbsent)
{
    for (const char* element : {"<date>2020-01-02T03:04:05Z</date>", "<array><true/></array>", "<dict/>",
             "<integer>18446744073709551615</integer>", "<integer>9223372036854775808</integer>", "<real>1e300</real>"})
        EXPECT_EQ(valueIn(element), std::nullopt) << element;
    EXPECT_EQ(valueIn(std::string{"<string>a\0b</string>", 20}), std::nullopt);
    EXPECT_EQ(PropertyList{}.value("it"), std::nullopt);
}

TEST(PropertyListTest, ANumberThatCannotBeReadIsAbsentAndTheRestStays)
{
    for (const char* element : {"<integer>abc</integer>", "<integer>30x</integer>", "<integer>1.5</integer>",
             "<integer>0x1E</integer>", "<integer>3 0</integer>", "<integer></integer>", "<integer/>", "<integer />",
             "<integer>- 5</integer>", "<integer>+-5</integer>", "<integer>99999999999999999999</integer>",
             "<real>0,5</real>", "<real>half</real>", "<real>0.5f</real>", "<real>1e999</real>", "<real/>"}) {
        auto list = PropertyList::parse(document("<key>before</key><integer>1</integer><key>it</key>"
            + std::string{element} + "<key>after</key><real>2</real>"));

        ASSERT_TRUE(list) << element;
        EXPECT_EQ(list->value("it"), std::nullopt) << element;
        EXPECT_EQ(list->value("before"), StoredValue{std::int64_t{1}}) << element;
        EXPECT_EQ(list->value("after"), StoredValue{2.0F}) << element;
    }
    EXPECT_NE(
        PropertyList::parse(document("<key>it</key><integer>30x</integer>"))->toXml().find("30x"), std::string::npos);
}

TEST(PropertyListTest, ANumberIsReadAsAPersonWroteIt)
{
    EXPECT_EQ(valueIn("<integer>030</integer>"), StoredValue{std::int64_t{30}});
    EXPECT_EQ(valueIn("<integer>+30</integer>"), StoredValue{std::int64_t{30}});
    EXPECT_EQ(valueIn("<integer>\n\t-30\n</integer>"), StoredValue{std::int64_t{-30}});
    EXPECT_EQ(valueIn("<integer >30</integer>"), StoredValue{std::int64_t{30}});
    EXPECT_EQ(valueIn("<real> +5e-1 </real>"), StoredValue{0.5F});
}

TEST(PropertyListTest, TextThatOnlyLooksLikeANumberStaysAsItIs)
{
    EXPECT_EQ(valueIn("<string><![CDATA[<integer>30x</integer>]]></string>"),
        StoredValue{std::string{"<integer>30x</integer>"}});
    EXPECT_EQ(valueIn("<!-- <integer>30x</integer> --><true/>"), StoredValue{true});
}

TEST(PropertyListTest, NumbersDoNotDependOnTheLanguage)
{
    const TemporaryFolder languages;
    const std::string german = languages.path() / "de_DE.UTF-8";
    ASSERT_EQ(std::system(("localedef -i de_DE -f UTF-8 " + german).c_str()), 0);
    ::setenv("LOCPATH", languages.path().c_str(), 1);
    ASSERT_TRUE(std::setlocale(LC_ALL, "de_DE.UTF-8"));
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");

    PropertyList written;
    written.set("it", 0.25F);
    const std::string xml = written.toXml();
    const auto value = PropertyList::parse(xml)->value("it");
    std::setlocale(LC_ALL, "C");

    EXPECT_NE(xml.find("<real>0.25</real>"), std::string::npos) << xml;
    EXPECT_EQ(value, StoredValue{0.25F});
}

TEST(PropertyListTest, TheBinaryFormIsRead)
{
    const std::string xml = document("<key>below</key><integer>-50</integer>");
    plist_t root = nullptr;
    plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &root);
    plist_dict_set_item(root, "minutes", plist_new_uint(50));
    plist_dict_set_item(root, "on", plist_new_bool(1));
    plist_dict_set_item(root, "volume", plist_new_real(0.5));
    plist_dict_set_item(root, "text", plist_new_string("\u00e9"));
    plist_dict_set_item(root, "blob", plist_new_data("\"Glass\"", 7));

    const auto list = PropertyList::parse(binary(root));

    ASSERT_TRUE(list);
    EXPECT_EQ(list->value("minutes"), StoredValue{std::int64_t{50}});
    EXPECT_EQ(list->value("below"), StoredValue{std::int64_t{-50}});
    EXPECT_EQ(list->value("on"), StoredValue{true});
    EXPECT_EQ(list->value("volume"), StoredValue{0.5F});
    EXPECT_EQ(list->value("text"), StoredValue{std::string{"\u00e9"}});
    EXPECT_EQ(list->value("blob"), (StoredValue{Blob{0x22, 'G', 'l', 'a', 's', 's', 0x22}}));
}

TEST(PropertyListTest, WhatIsNotKnownIsCarriedAlong)
{
    const std::string foreign = "<key>when</key><date>2020-01-02T03:04:05Z</date>"
                                "<key>list</key><array><integer>-1</integer><dict><key>a&amp;b</key><real>0.1</real>"
                                "</dict></array><key>huge</key><integer>18446744073709551615</integer>";
    auto list = PropertyList::parse(document(foreign));
    ASSERT_TRUE(list);
    const std::string before = list->toXml();

    list->set("focusMinutes", std::int64_t{5});
    std::string after = list->toXml();

    const std::string added = "\t<key>focusMinutes</key>\n\t<integer>5</integer>\n";
    const auto position = after.find(added);
    ASSERT_NE(position, std::string::npos) << after;
    EXPECT_EQ(after.erase(position, added.size()), before);
    for (const char* kept : {"<date>2020-01-02T03:04:05Z</date>", "<integer>18446744073709551615</integer>",
             "<integer>-1</integer>", "<key>a&amp;b</key>"})
        EXPECT_NE(before.find(kept), std::string::npos) << kept;
}

TEST(PropertyListTest, TextIsCutAtANul)
{
    PropertyList list;
    list.set("it", std::string{"a\0b", 3});

    EXPECT_EQ(list.value("it"), StoredValue{std::string{"a"}});
}

TEST(PropertyListTest, WhatIsNoPropertyListIsRefused)
{
    std::string deep;
    for (int i = 0; i < 1000; ++i)
        deep = "<array>" + deep + "</array>";
    for (const std::string& bytes : {std::string{}, std::string{"garbage"}, std::string{"<plist/>"},
             std::string{"<plist><string>a</string></plist>"}, std::string{"<plist><array/></plist>"},
             std::string{"<plist><dict><integer>1</integer></dict></plist>"},
             std::string{"<plist><dict/></plist>trailing"}, std::string{"bplist00"}, std::string(100, '\0'),
             std::string{"{\"focusMinutes\": 25}"}, document("<key>it</key>" + deep),
             document("<key>it</key><string>" + std::string(PropertyList::maximumSize, 'x') + "</string>")})
        EXPECT_FALSE(PropertyList::parse(bytes)) << bytes.substr(0, 200);
}

TEST(PropertyListTest, WhatCouldNotBeReadAgainOnceWrittenIsRefused)
{
    const std::string bytes(PropertyList::maximumSize * 9 / 10, 'x');
    plist_t root = plist_new_dict();
    plist_dict_set_item(root, "it", plist_new_data(bytes.data(), bytes.size()));

    EXPECT_FALSE(PropertyList::parse(binary(root)));
}

TEST(PropertyListTest, AFileThatWasCutIsRefused)
{
    PropertyList list;
    list.set("focusMinutes", std::int64_t{25});
    list.set("musicVolume", 0.25F);
    list.set("focusEndSound", Blob{0x22, 'G', 0x22});
    const std::string xml = list.toXml();
    const auto lastOfContent = xml.rfind("</dict>");

    for (std::size_t length = 0; length < lastOfContent; ++length)
        EXPECT_FALSE(PropertyList::parse(xml.substr(0, length))) << length;
}

} // namespace velto
