#include <gtest/gtest.h>

#include "framework/Exceptions.h"
#include "framework/RegEx.h"
#include "framework/Xml.h"

using namespace fw;

TEST(Xml, ChildXqlValueAndAttributes) {
    XmlDocument doc("<?xml version=\"1.0\"?>\n<Conversions>\n<Category><Name>Power</Name><List>"
                    "<SubList convert=\"*745.7\">hp->W</SubList><SubList>W->hp</SubList></List></Category>"
                    "</Conversions>");
    XmlNodeRef root = doc.Child(0);
    ASSERT_FALSE(root.IsNil());
    EXPECT_EQ(root->Name(), "Conversions");
    XmlNodeList categories = root->Xql("Category");
    ASSERT_EQ(categories.Length(), 1);
    XmlNodeList subs = categories.Item(0)->Xql("List/SubList");
    ASSERT_EQ(subs.Length(), 2);
    EXPECT_EQ(subs.Item(0)->Child(0)->Value(), "hp->W");
    EXPECT_EQ(subs.Item(0)->GetAttribute("convert"), "*745.7");
    EXPECT_EQ(subs.Item(1)->GetAttribute("convert"), "");
    EXPECT_TRUE(subs.Item(1)->Child(5).IsNil());
    EXPECT_THROW(subs.Item(2), OutOfBoundsException);
}

TEST(Xml, CommentBeforeTheRootIsChildZero) {
    XmlDocument doc("<!-- note --><Data/>");
    EXPECT_EQ(doc.Child(0)->Name(), "");
    EXPECT_EQ(doc.Child(1)->Name(), "Data");
}

TEST(Xml, BadTextRaisesAndLoadReplaces) {
    EXPECT_THROW(XmlDocument("<a><b></a>"), XmlException);
    EXPECT_THROW(XmlDocument(""), XmlException);
    EXPECT_THROW(XmlDocument(std::string("\xff\xfe\0\x01", 4)), XmlException);
    XmlDocument doc("<a/>");
    doc.LoadXml("<b/>");
    EXPECT_EQ(doc.Child(0)->Name(), "b");
    EXPECT_THROW(doc.Xql("!!"), XmlException);
}

TEST(RegEx, SearchGoesOnInTheFirstTargetAndIgnoresCase) {
    RegEx re;
    re.SearchPattern = "\\d+!";
    auto first = re.Search("5!+15!");
    ASSERT_TRUE(first);
    EXPECT_EQ(first->SubExpressionString(0), "5!");
    auto second = re.Search();
    ASSERT_TRUE(second);
    EXPECT_EQ(second->SubExpressionString(0), "15!");
    EXPECT_FALSE(re.Search());

    RegEx article;
    article.SearchPattern = "^the ";
    article.ReplacementPattern = "";
    EXPECT_EQ(article.Replace("The the moon"), "the moon");
    EXPECT_EQ(article.Replace("moon"), "moon");
}

TEST(RegEx, BrokenUtf8AndHugeTextDoNotFail) {
    RegEx re;
    re.SearchPattern = "\\d+!";
    std::string text = "\xff\xc3(7!";
    auto match = re.Search(text);
    ASSERT_TRUE(match);
    EXPECT_EQ(match->SubExpressionString(0), "7!");
    std::string big(1 << 20, '5');
    EXPECT_FALSE(re.Search(big));
}
