#include "framework/Xml.h"

#include "framework/Exceptions.h"

namespace fw {

XmlNodeRef XmlNode::Child(int index) const {
    if (index < 0) return nullptr;
    int i = 0;
    for (pugi::xml_node child = node_.first_child(); child; child = child.next_sibling(), ++i)
        if (i == index) return MakeRef<XmlNode>(document_, child);
    return nullptr;
}

int XmlNode::ChildCount() const {
    int count = 0;
    for (pugi::xml_node child = node_.first_child(); child; child = child.next_sibling()) ++count;
    return count;
}

std::string XmlNode::GetAttribute(const std::string& name) const {
    return node_.attribute(name.c_str()).value();
}

XmlNodeList XmlNode::Xql(const std::string& query) const {
    std::vector<pugi::xml_node> nodes;
    // A plain child name is by far the common query; it needs no XPath compiler.
    if (!query.empty() && query.find_first_of("/[]@()*:.|=!<> '\"$") == std::string::npos &&
        !(query[0] >= '0' && query[0] <= '9') && query[0] != '-') {
        for (pugi::xml_node child = node_.child(query.c_str()); child; child = child.next_sibling(query.c_str()))
            nodes.push_back(child);
        return XmlNodeList(document_, std::move(nodes));
    }
    try {
        pugi::xpath_query compiled(query.c_str());
        for (const pugi::xpath_node& found : compiled.evaluate_node_set(node_))
            if (found.node()) nodes.push_back(found.node());
    } catch (const pugi::xpath_exception& error) {
        throw XmlException(std::string("bad query: ") + error.what());
    }
    return XmlNodeList(document_, std::move(nodes));
}

XmlNodeRef XmlNodeList::Item(int index) const {
    if (index < 0 || index >= Length())
        throw OutOfBoundsException("node list item " + std::to_string(index));
    return MakeRef<XmlNode>(document_, nodes_[static_cast<size_t>(index)]);
}

XmlDocument::XmlDocument() : XmlNode(std::make_shared<pugi::xml_document>(), pugi::xml_node()) {
    node_ = *document_;
}

XmlDocument::XmlDocument(const std::string& text) : XmlDocument() { LoadXml(text); }

void XmlDocument::LoadXml(const std::string& text) {
    // Comments and processing instructions are nodes, so that Child(0) sees what stands first;
    // the XML declaration is not.
    const unsigned options = pugi::parse_default | pugi::parse_comments | pugi::parse_pi;
    auto fresh = std::make_shared<pugi::xml_document>();
    pugi::xml_parse_result result = fresh->load_buffer(text.data(), text.size(), options, pugi::encoding_utf8);
    if (!result)
        throw XmlException(std::string(result.description()) + " at offset " + std::to_string(result.offset));
    document_ = std::move(fresh);
    node_ = *document_;
}

}  // namespace fw
