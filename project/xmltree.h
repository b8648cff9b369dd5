#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

// One node of an XML document kept in source order, attributes included.
struct XmlNode
{
    enum Kind { Element, Text, Comment, ProcessingInstruction };

    Kind kind = Element;
    QString name; // element name, or the target of a processing instruction
    QString text; // text, comment or processing instruction data
    QList<QPair<QString, QString>> attributes;
    QList<XmlNode> children;

    bool isElement() const { return kind == Element; }
    bool hasAttribute(const QString &key) const;
    QString attribute(const QString &key) const;
    void setAttribute(const QString &key, const QString &value);

    // The first child element named `childName`, or nullptr.
    XmlNode *firstChild(const QString &childName);
    const XmlNode *firstChild(const QString &childName) const;
    // Every child element named `childName` (all child elements for an empty name).
    QList<XmlNode *> childElements(const QString &childName = QString());

    // The concatenated text of the direct text children.
    QString ownText() const;
    // Replaces all children by one text node (none when `value` is empty).
    void setOwnText(const QString &value);
    // The text of the first child element named `childName`, "" when there is none.
    QString childText(const QString &childName) const;

    // Appends a child element and returns it.
    XmlNode &appendElement(const QString &childName, const QString &value = QString());
};

// An XML file read into XmlNodes and written back in a stable layout: the declaration as it
// stood (with UTF-8 as encoding), the indentation and line ends of the source, attributes in
// their order, empty elements without attributes as <a></a>, and with attributes as <a .../>.
class XmlTree
{
public:
    // Parses `data` after the guard of the safe XML loader; false (tree empty) on refusal.
    bool parse(const QByteArray &data);
    QByteArray serialize() const;

    // The document's root element (an empty element before a successful parse).
    XmlNode &root();
    const XmlNode &root() const;

    // Elements matching a path from the root element, segments separated by "/":
    //   Name              child elements of that name
    //   Name[child=text]  ... whose child element `child` holds `text`
    //   Name[@attr=value] ... whose attribute `attr` is `value`
    //   **                any depth (zero or more levels)
    // The first segment is matched against the children of the root element.
    QList<XmlNode *> select(const QString &path);

    // Applies `edit` to every text node and attribute value of the document.
    template <typename Edit> void editAllText(Edit edit) { editText(m_document, edit); }

private:
    template <typename Edit> static void editText(XmlNode &node, Edit &edit)
    {
        if (node.kind == XmlNode::Text)
            node.text = edit(node.text);
        for (auto &attribute : node.attributes)
            attribute.second = edit(attribute.second);
        for (XmlNode &child : node.children)
            editText(child, edit);
    }

    XmlNode m_noRoot;   // returned by root() before a successful parse
    XmlNode m_document; // children: comments, processing instructions and the root element
    QString m_declaration;
    QString m_indent = QStringLiteral("  ");
    QString m_newline = QStringLiteral("\n");
};
