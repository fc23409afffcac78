#pragma once
// XML documents over pugixml, in the shape the logic reads them: Child by index over every
// child node (comments and processing instructions count), Xql as an XPath selection relative
// to the node, Value of a text node.

#include <memory>
#include <string>
#include <vector>

#include <pugixml.hpp>

#include "framework/Ref.h"

namespace fw {

class XmlNode;
class XmlNodeList;
using XmlNodeRef = Ref<XmlNode>;

class XmlNode {
public:
    XmlNode(std::shared_ptr<pugi::xml_document> document, pugi::xml_node node)
        : document_(std::move(document)), node_(node) {}
    virtual ~XmlNode() = default;

    std::string Name() const { return node_.name(); }
    // The text of a text node; "" for others.
    std::string Value() const { return node_.value(); }
    // nil if there is no child of that zero-based index.
    XmlNodeRef Child(int index) const;
    int ChildCount() const;
    // "" when the attribute is absent.
    std::string GetAttribute(const std::string& name) const;
    // Raises XmlException for a query that is not valid XPath.
    XmlNodeList Xql(const std::string& query) const;

protected:
    std::shared_ptr<pugi::xml_document> document_;
    pugi::xml_node node_;
};

class XmlNodeList {
public:
    XmlNodeList(std::shared_ptr<pugi::xml_document> document, std::vector<pugi::xml_node> nodes)
        : document_(std::move(document)), nodes_(std::move(nodes)) {}
    int Length() const { return static_cast<int>(nodes_.size()); }
    // Raises OutOfBoundsException past the end.
    XmlNodeRef Item(int index) const;

private:
    std::shared_ptr<pugi::xml_document> document_;
    std::vector<pugi::xml_node> nodes_;
};

class XmlDocument : public XmlNode {
public:
    XmlDocument();
    // Parses `text`; raises XmlException if it is not well-formed.
    explicit XmlDocument(const std::string& text);
    // Replaces the content with the parsed `text`; raises XmlException if not well-formed.
    void LoadXml(const std::string& text);
};
using XmlDocumentRef = Ref<XmlDocument>;

}  // namespace fw
