// Names of field qualifiers, actions and modes, and sets of them as text.
#include "diag_fixture.h"
#include "sdk/constants.h"
#include "sdk/diag/format.h"
#include "sdk/diag/parse.h"
#include "standin/text/name_text.h"

namespace standin {
namespace {

TEST(FieldText, EveryQualifierParsesBack) {
    std::size_t longest = field_qualifier_names().longest();
    for (int value = -1; value < bcmFieldQualifyCount + 300; ++value) {
        if (value == bcmFieldQualifyCount) continue;
        for (int brief : {0, 1}) {
            Room room(longest + 1);
            auto qualifier = static_cast<bcm_field_qualify_t>(value);
            EXPECT_EQ(format_field_qualifier(room.data(), qualifier, brief), room.data());
            EXPECT_EQ(parse_field_qualifier(room.data()), value) << room.text();
        }
    }
}

TEST(FieldText, EveryActionModeAndDecapParsesBack) {
    Room room(64);
    for (int value = 0; value < bcmFieldActionCount; ++value) {
        format_field_action(room.data(), static_cast<bcm_field_action_t>(value), value % 2);
        EXPECT_EQ(parse_field_action(room.data()), value) << room.text();
    }
    for (int value = 0; value < bcmFieldGroupModeCount; ++value) {
        format_field_group_mode(room.data(), static_cast<bcm_field_group_mode_t>(value), 1);
        EXPECT_EQ(parse_field_group_mode(room.data()), value) << room.text();
    }
    for (int value = 0; value < bcmFieldDecapCount; ++value) {
        format_field_decap(room.data(), static_cast<bcm_field_decap_t>(value));
        EXPECT_EQ(parse_field_decap(room.data()), value) << room.text();
    }
}

TEST(FieldText, NamesInAnyCaseAndAliases) {
    EXPECT_EQ(parse_field_qualifier(Text("bcmFieldQualifySrcIp")), bcmFieldQualifySrcIp);
    EXPECT_EQ(parse_field_qualifier(Text(" srcip ")), bcmFieldQualifySrcIp);
    EXPECT_EQ(parse_field_qualifier(Text("Tos")), bcmFieldQualifyDSCP);
    EXPECT_EQ(parse_field_action(Text("Redirect")), bcmFieldActionRedirectPort);
    EXPECT_EQ(parse_field_MplsOamCtrlPktType(Text("VCCV2")), bcmFieldMplsOamControlPktTypeVCCV2);
    EXPECT_EQ(parse_field_oam_type(Text("mpls")), bcmFieldOamTypeMpls);
    EXPECT_EQ(parse_field_olp_hdr_type(Text("EthOamCcm")), bcmFieldOlpHeaderTypeEthCC);
}

TEST(FieldText, WhatIsNoNameGivesTheCount) {
    for (const char *text : {"", "frog", "Count", "bcmFieldQualify", "SrcIp,DstIp"})
        EXPECT_EQ(parse_field_qualifier(Text(text)), bcmFieldQualifyCount) << text;
    EXPECT_EQ(parse_field_qualifier(nullptr), bcmFieldQualifyCount);
    EXPECT_EQ(parse_field_action(nullptr), bcmFieldActionCount);
    EXPECT_EQ(parse_field_group_mode(nullptr), bcmFieldGroupModeCount);
    EXPECT_EQ(parse_field_decap(nullptr), bcmFieldDecapCount);
    EXPECT_EQ(parse_field_MplsOamCtrlPktType(nullptr), bcmFieldMplsOamControlPktTypeCount);
    EXPECT_EQ(parse_field_oam_type(nullptr), bcmFieldOamTypeCount);
    EXPECT_EQ(parse_field_olp_hdr_type(nullptr), bcmFieldOlpHeaderTypeCount);
}

TEST(FieldText, QualifierSetsParseBack) {
    Random random;
    for (const char *separator : {", ", "|", " + ", "; ", "\n"}) {
        bcm_field_qset_t qset{};
        for (int left = 0; left < 30; ++left) {
            std::uint32_t member = random.below(bcmFieldQualifyCount + 277);
            qset.w[member / 32] |= 1U << member % 32;
        }
        Room room(4096);
        EXPECT_EQ(format_field_qset(room.data(), qset, Text(separator)), room.data());
        bcm_field_qset_t back{};
        back.w[0] = 0xffffffff;
        ASSERT_EQ(parse_field_qset(room.data(), &back), BCM_E_NONE) << room.text();
        for (std::size_t at = 0; at < std::size(qset.w); ++at) EXPECT_EQ(back.w[at], qset.w[at]);
    }
}

TEST(FieldText, QualifierSetsOnTheirOwnTerms) {
    bcm_field_qset_t qset{};
    Room room(64);
    format_field_qset(room.data(), qset, nullptr);
    EXPECT_EQ(room.text(), "none");
    ASSERT_EQ(parse_field_qset(Text("{SrcIp, DstIp}"), &qset), BCM_E_NONE);
    format_field_qset(room.data(), qset, nullptr);
    EXPECT_EQ(room.text(), "SrcIp, DstIp");
    bcm_field_qset_t before = qset;
    for (const char *text : {"", " , ", "SrcIp frog", "961", "-1,frog"})
        EXPECT_EQ(parse_field_qset(Text(text), &qset), BCM_E_PARAM) << text;
    EXPECT_EQ(parse_field_qset(nullptr, &qset), BCM_E_PARAM);
    EXPECT_EQ(parse_field_qset(Text("SrcIp"), nullptr), BCM_E_PARAM);
    for (std::size_t at = 0; at < std::size(qset.w); ++at) EXPECT_EQ(qset.w[at], before.w[at]);
    EXPECT_EQ(parse_field_qset(Text("none"), &qset), BCM_E_NONE);
    EXPECT_EQ(qset.w[bcmFieldQualifySrcIp / 32], 0u);
}

TEST(FieldText, ActionSetsAddAndRemove) {
    bcm_field_aset_t aset{};
    Room room(128);
    ASSERT_EQ(parse_field_aset(Text("Drop,CopyToCpu"), &aset, 1), BCM_E_NONE);
    ASSERT_EQ(parse_field_aset(Text("Redirect"), &aset, 255), BCM_E_NONE);
    ASSERT_EQ(parse_field_aset(Text("Drop"), &aset, 0), BCM_E_NONE);
    format_field_aset(room.data(), aset, Text("/"));
    bcm_field_aset_t back{};
    ASSERT_EQ(parse_field_aset(room.data(), &back, 1), BCM_E_NONE) << room.text();
    for (std::size_t at = 0; at < std::size(aset.w); ++at) EXPECT_EQ(back.w[at], aset.w[at]);
    EXPECT_NE(aset.w[bcmFieldActionCopyToCpu / 32], 0u);
    EXPECT_EQ(parse_field_aset(Text("498"), &aset, 1), BCM_E_PARAM);
}

TEST(Identifiers, ListsAreWholeAndAscending) {
    struct Case {
        Identifier kind;
        std::size_t count;
        int first;
        int last;
    };
    for (const Case &one :
         {Case{Identifier::kRegister, 132, 4871, 61037}, Case{Identifier::kMemory, 72, 370, 10664},
          Case{Identifier::kField, 266, 472, 109775}}) {
        const std::vector<IdentifierName> &list = identifiers(one.kind);
        ASSERT_EQ(list.size(), one.count);
        EXPECT_EQ(list.front().id, one.first);
        EXPECT_EQ(list.back().id, one.last);
        for (const IdentifierName &entry : list) {
            EXPECT_EQ(identifier_of(one.kind, identifier_text(one.kind, entry.id)), entry.id);
            std::string full = std::string(entry.name) + static_cast<char>(one.kind);
            EXPECT_EQ(identifier_of(one.kind, full), entry.id) << full;
        }
    }
}

}  // namespace
}  // namespace standin
