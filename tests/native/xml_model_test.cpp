// The document model: insertion order, attribute replacement, comments,
// clearing, and consistency when memory runs out.
#include <gtest/gtest.h>

#include <cstring>

#include "base/u16.h"
#include "xml/xml_alloc.h"
#include "xml_test_util.h"

using namespace mx::xml;
using xmltest::Doc;

namespace {

// Attribute names and values in list order, checking the links both ways.
std::string attributes(const XmlNode *n) {
    std::string out;
    const XmlAttribute *prev = nullptr;
    uint32_t count = 0;
    for (const XmlAttribute *a = n->firstAttribute; a; prev = a, a = a->next, ++count) {
        EXPECT_EQ(a->previous, prev);
        out += mx::toUtf8(a->name) + "=" + mx::toUtf8(a->value) + ";";
    }
    EXPECT_EQ(n->lastAttribute, prev);
    EXPECT_EQ(n->attributeCount, count);
    return out;
}

// Child names in list order, checking links, parents and the count.
std::string children(const XmlNode *n) {
    std::string out;
    const XmlNode *prev = nullptr;
    uint32_t count = 0;
    for (const XmlNode *c = n->firstChild; c; prev = c, c = c->nextSibling, ++count) {
        EXPECT_EQ(c->previousSibling, prev);
        EXPECT_EQ(c->parent, n);
        out += (c->name ? mx::toUtf8(c->name) : std::string("(null)")) + ";";
    }
    EXPECT_EQ(n->lastChild, prev);
    EXPECT_EQ(n->childCount, count);
    return out;
}

struct AllocationGuard {
    ~AllocationGuard() { xmlFailAllocationsAfter(-1); }
};

}  // namespace

TEST(XmlModel, NewDocumentHasUtf8SpaceIndentAndEmptyRoot) {
    Doc d(CreateDocument());
    ASSERT_NE(d->root, nullptr);
    EXPECT_EQ(d->encoding, XMLENC_UTF8);
    EXPECT_EQ(d->indent, ' ');
    XmlNode empty{};
    EXPECT_EQ(std::memcmp(d->root, &empty, sizeof empty), 0);
}

TEST(XmlModel, ChildrenKeepInsertionOrderAndCopyTheirNames) {
    Doc d = xmltest::newDocument(u"r");
    char16_t name[] = u"first";
    XmlNode *a, *b, *c;
    ASSERT_EQ(AddChild(d->root, name, &a), 0);
    name[0] = u'F';  // the model holds its own copy
    ASSERT_EQ(AddChild(d->root, u"second", &b), 0);
    ASSERT_EQ(AddChild(d->root, nullptr, &c), 0);
    EXPECT_EQ(children(d->root), "first;second;(null);");
    EXPECT_EQ(c->name, nullptr);
    EXPECT_TRUE(mx::u16IsWhiteText(c->name));
    EXPECT_EQ(c->text, nullptr);
}

TEST(XmlModel, SetAttributeReplacesInPlaceAndComparesCaseSensitively) {
    Doc d = xmltest::newDocument(u"r");
    XmlNode *r = d->root;
    EXPECT_EQ(SetAttribute(r, u"a", u"1"), 0);
    EXPECT_EQ(SetAttribute(r, u"b", u"2"), 0);
    EXPECT_EQ(SetAttribute(r, u"a", u"3"), 0);
    EXPECT_EQ(SetAttribute(r, u"A", u"4"), 0);
    EXPECT_EQ(SetAttribute(r, u"b", nullptr), 0);
    EXPECT_EQ(attributes(r), "a=3;b=;A=4;");
    ASSERT_NE(r->firstAttribute->next->value, nullptr);  // absent value: empty text
}

TEST(XmlModel, FindAttributeTreatsAbsentNamesAsEmpty) {
    Doc d = xmltest::newDocument(u"r");
    XmlAttribute *unnamed;
    ASSERT_EQ(AddAttribute(d->root, &unnamed), 0);
    EXPECT_EQ(FindAttribute(d->root, u""), unnamed);
    EXPECT_EQ(FindAttribute(d->root, nullptr), unnamed);
    EXPECT_EQ(FindAttribute(d->root, u"x"), nullptr);
    EXPECT_EQ(SetAttribute(d->root, u"", u"v"), 0);  // finds the unnamed one
    EXPECT_EQ(d->root->attributeCount, 1u);
    EXPECT_EQ(FindAttribute(d->root, u"ab"), nullptr);
    SetAttribute(d->root, u"ab", u"1");
    EXPECT_EQ(FindAttribute(d->root, u"a"), nullptr);  // no prefix matches
    EXPECT_EQ(FindAttribute(d->root, u"abc"), nullptr);
}

TEST(XmlModel, SetCommentTurnsEveryArrowIntoGreaterThan) {
    struct Case {
        const char16_t *in;
        const char16_t *stored;
    } cases[] = {
        {u"a-->b-->c", u"a>b>c"},
        {u"--->", u"->"},
        {u"---->", u"-->"},
        {u"-- >", u"-- >"},
        {u"-->-->", u">>"},
        {u"", u""},
        {u"plain", u"plain"},
    };
    Doc d = xmltest::newDocument(u"r");
    for (const Case &c : cases) {
        EXPECT_EQ(SetComment(d->root, c.in), 0);
        EXPECT_TRUE(mx::u16Eq(d->root->comment, c.stored)) << mx::toUtf8(c.in);
    }
    SetComment(d->root, nullptr);
    EXPECT_EQ(d->root->comment, nullptr);
}

TEST(XmlModel, SetTextAndSetNameHandleAbsentTexts) {
    Doc d = xmltest::newDocument(u"r");
    EXPECT_EQ(SetText(d->root, nullptr), 0);
    ASSERT_NE(d->root->text, nullptr);
    EXPECT_EQ(d->root->text[0], 0);
    EXPECT_TRUE(mx::u16IsWhiteText(d->root->text));
    EXPECT_EQ(SetName(d->root, nullptr), 0);
    EXPECT_EQ(d->root->name, nullptr);
}

TEST(XmlModel, ClearNodeEmptiesTheNodeAndKeepsItsPlace) {
    Doc d = xmltest::newDocument(u"r");
    XmlNode *a = xmltest::child(d->root, u"a", u"t");
    XmlNode *b = xmltest::child(d->root, u"b");
    xmltest::child(a, u"deep");
    SetAttribute(a, u"x", u"1");
    SetComment(a, u"c");
    ClearNode(a);
    ClearNode(a);  // twice is harmless
    EXPECT_EQ(a->name, nullptr);
    EXPECT_EQ(a->text, nullptr);
    EXPECT_EQ(a->comment, nullptr);
    EXPECT_EQ(a->firstChild, nullptr);
    EXPECT_EQ(a->firstAttribute, nullptr);
    EXPECT_EQ(a->childCount + a->attributeCount, 0u);
    EXPECT_EQ(a->parent, d->root);
    EXPECT_EQ(a->nextSibling, b);
    EXPECT_EQ(children(d->root), "(null);b;");
}

TEST(XmlModel, DeepTreesAreReleasedWithoutRecursion) {
    Doc d = xmltest::newDocument(u"r");
    XmlNode *n = d->root;
    for (int i = 0; i < 200000; ++i) n = xmltest::child(n, u"n", u"x");
    d.reset();  // would overflow the stack if released recursively
    SUCCEED();
}

// Every allocation of every operation fails in turn: the operation answers
// -2 and the tree stays consistent (checked by the link walks above).
TEST(XmlModel, ExhaustedMemoryAnswersMinusTwoAndKeepsTheTreeConsistent) {
    AllocationGuard guard;
    for (int allowed = 0; allowed < 3; ++allowed) {
        SCOPED_TRACE(allowed);
        Doc d = xmltest::newDocument(u"r");
        XmlNode *kept = xmltest::child(d->root, u"kept");
        SetAttribute(d->root, u"k", u"v");
        xmlFailAllocationsAfter(allowed);
        XmlNode *c = nullptr;
        int32_t add = AddChild(d->root, u"new", &c);
        xmlFailAllocationsAfter(allowed);
        int32_t attr = SetAttribute(d->root, u"n", u"w");
        xmlFailAllocationsAfter(allowed);
        int32_t text = SetText(kept, u"text");
        xmlFailAllocationsAfter(-1);
        if (allowed < 2) {
            EXPECT_EQ(add, XMLERR_NOMEM);
            EXPECT_EQ(c, nullptr);
            EXPECT_EQ(children(d->root), "kept;");
        } else {
            EXPECT_EQ(add, 0);
            EXPECT_EQ(children(d->root), "kept;new;");
        }
        EXPECT_EQ(text, allowed == 0 ? XMLERR_NOMEM : 0);
        EXPECT_EQ(kept->text == nullptr, allowed == 0);
        // attribute record, name copy, value copy: a record that could not
        // be made is not linked; one made stays, with what could be copied
        EXPECT_EQ(attr, XMLERR_NOMEM);
        std::string attrs = attributes(d->root);
        EXPECT_EQ(attrs, allowed == 0 ? "k=v;" : allowed == 1 ? "k=v;=;" : "k=v;n=;");
    }
}
