#include "project/xmltree.h"

#include "database/safexml.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

// Escapes the markup characters of XML; attribute values also escape quotes and the white
// space characters that a parser would otherwise fold.
QString escapeXml(const QString &text, bool attribute)
{
    QString out;
    out.reserve(text.size());
    for (const QChar c : text) {
        const ushort u = c.unicode();
        if (u == '&')
            out += QLatin1String("&amp;");
        else if (u == '<')
            out += QLatin1String("&lt;");
        else if (u == '>')
            out += QLatin1String("&gt;");
        else if (attribute && u == '"')
            out += QLatin1String("&quot;");
        else if (attribute && (u == '\t' || u == '\n' || u == '\r'))
            out += QStringLiteral("&#%1;").arg(int(u));
        else
            out += c;
    }
    return out;
}

QString escapeText(const QString &text)
{
    return escapeXml(text, false);
}

QString escapeAttribute(const QString &text)
{
    return escapeXml(text, true);
}

bool isBlank(const QString &text)
{
    for (const QChar c : text) {
        if (!c.isSpace())
            return false;
    }
    return true;
}

bool hasElementChild(const XmlNode &node)
{
    for (const XmlNode &child : node.children) {
        if (child.kind != XmlNode::Text)
            return true;
    }
    return false;
}

void writeNode(const XmlNode &node, int depth, const QString &indent, const QString &newline,
               QString &out)
{
    QString pad;
    for (int i = 0; i < depth; ++i)
        pad += indent;
    switch (node.kind) {
    case XmlNode::Text:
        out += pad + escapeText(node.text) + newline;
        return;
    case XmlNode::Comment:
        out += pad + QLatin1String("<!--") + node.text + QLatin1String("-->") + newline;
        return;
    case XmlNode::ProcessingInstruction:
        out += pad + QLatin1String("<?") + node.name;
        if (!node.text.isEmpty())
            out += QLatin1Char(' ') + node.text;
        out += QLatin1String("?>") + newline;
        return;
    case XmlNode::Element:
        break;
    }
    out += pad + QLatin1Char('<') + node.name;
    for (const auto &attribute : node.attributes)
        out += QLatin1Char(' ') + attribute.first + QLatin1String("=\"") +
               escapeAttribute(attribute.second) + QLatin1Char('"');
    if (node.children.isEmpty()) {
        if (node.attributes.isEmpty())
            out += QLatin1String("></") + node.name + QLatin1Char('>') + newline;
        else
            out += QLatin1String("/>") + newline;
        return;
    }
    if (!hasElementChild(node)) {
        out += QLatin1Char('>') + escapeText(node.ownText()) + QLatin1String("</") + node.name +
               QLatin1Char('>') + newline;
        return;
    }
    out += QLatin1Char('>') + newline;
    for (const XmlNode &child : node.children)
        writeNode(child, depth + 1, indent, newline, out);
    out += pad + QLatin1String("</") + node.name + QLatin1Char('>') + newline;
}

// One step of a path: an element name with an optional condition on a child or an attribute.
struct PathStep
{
    QString name;
    QString key; // child name, or "@attribute"
    QString value;
    bool anyDepth = false;

    bool matches(const XmlNode &node) const
    {
        if (!node.isElement() || node.name != name)
            return false;
        if (key.isEmpty())
            return true;
        if (key.startsWith(QLatin1Char('@')))
            return node.hasAttribute(key.mid(1)) && node.attribute(key.mid(1)) == value;
        return node.childText(key) == value;
    }
};

QList<PathStep> parsePath(const QString &path)
{
    QList<PathStep> steps;
    for (const QString &segment : path.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        PathStep step;
        if (segment == QLatin1String("**")) {
            step.anyDepth = true;
        } else {
            const int open = segment.indexOf(QLatin1Char('['));
            const int equals = segment.indexOf(QLatin1Char('='), open);
            if (open > 0 && equals > open && segment.endsWith(QLatin1Char(']'))) {
                step.name = segment.left(open);
                step.key = segment.mid(open + 1, equals - open - 1);
                step.value = segment.mid(equals + 1, segment.size() - equals - 2);
            } else {
                step.name = segment;
            }
        }
        steps << step;
    }
    return steps;
}

void selectFrom(XmlNode &node, const QList<PathStep> &steps, int at, QList<XmlNode *> &found)
{
    if (at == steps.size()) {
        if (!found.contains(&node))
            found << &node;
        return;
    }
    const PathStep &step = steps.at(at);
    if (step.anyDepth) {
        selectFrom(node, steps, at + 1, found);
        for (XmlNode &child : node.children) {
            if (child.isElement())
                selectFrom(child, steps, at, found);
        }
        return;
    }
    for (XmlNode &child : node.children) {
        if (step.matches(child))
            selectFrom(child, steps, at + 1, found);
    }
}

QString detectIndent(const QString &source)
{
    static const QRegularExpression firstIndented(QStringLiteral("\n([ \t]+)<"));
    const QRegularExpressionMatch m = firstIndented.match(source);
    if (!m.hasMatch())
        return QStringLiteral("  ");
    const QString indent = m.captured(1);
    return indent.startsWith(QLatin1Char('\t')) ? QStringLiteral("\t") : indent;
}

} // namespace

bool XmlNode::hasAttribute(const QString &key) const
{
    for (const auto &attribute : attributes) {
        if (attribute.first == key)
            return true;
    }
    return false;
}

QString XmlNode::attribute(const QString &key) const
{
    for (const auto &attribute : attributes) {
        if (attribute.first == key)
            return attribute.second;
    }
    return QString();
}

void XmlNode::setAttribute(const QString &key, const QString &value)
{
    for (auto &attribute : attributes) {
        if (attribute.first == key) {
            attribute.second = value;
            return;
        }
    }
    attributes.append({key, value});
}

XmlNode *XmlNode::firstChild(const QString &childName)
{
    for (XmlNode &child : children) {
        if (child.isElement() && child.name == childName)
            return &child;
    }
    return nullptr;
}

const XmlNode *XmlNode::firstChild(const QString &childName) const
{
    for (const XmlNode &child : children) {
        if (child.isElement() && child.name == childName)
            return &child;
    }
    return nullptr;
}

QList<XmlNode *> XmlNode::childElements(const QString &childName)
{
    QList<XmlNode *> found;
    for (XmlNode &child : children) {
        if (child.isElement() && (childName.isEmpty() || child.name == childName))
            found << &child;
    }
    return found;
}

QString XmlNode::ownText() const
{
    QString text;
    for (const XmlNode &child : children) {
        if (child.kind == Text)
            text += child.text;
    }
    return text;
}

void XmlNode::setOwnText(const QString &value)
{
    children.clear();
    if (value.isEmpty())
        return;
    XmlNode text;
    text.kind = Text;
    text.text = value;
    children << text;
}

QString XmlNode::childText(const QString &childName) const
{
    const XmlNode *child = firstChild(childName);
    return child ? child->ownText() : QString();
}

XmlNode &XmlNode::appendElement(const QString &childName, const QString &value)
{
    XmlNode element;
    element.name = childName;
    element.setOwnText(value);
    children << element;
    return children.last();
}

bool XmlTree::parse(const QByteArray &data)
{
    m_document = XmlNode();
    m_declaration.clear();
    if (!isSafeXml(data))
        return false;

    const QString source = QString::fromUtf8(data);
    m_newline =
        source.contains(QLatin1String("\r\n")) ? QStringLiteral("\r\n") : QStringLiteral("\n");
    m_indent = detectIndent(source);
    if (source.startsWith(QLatin1String("<?xml"))) {
        const int end = source.indexOf(QLatin1String("?>"));
        if (end > 0) {
            m_declaration = source.left(end + 2);
            static const QRegularExpression encoding(QStringLiteral("encoding=([\"'])[^\"']*\\1"));
            m_declaration.replace(encoding, QStringLiteral("encoding=\"UTF-8\""));
        }
    }

    QXmlStreamReader reader(data);
    QList<XmlNode *> stack{&m_document};
    while (!reader.atEnd()) {
        reader.readNext();
        XmlNode *parent = stack.last();
        switch (reader.tokenType()) {
        case QXmlStreamReader::StartElement: {
            XmlNode element;
            element.name = reader.qualifiedName().toString();
            for (const auto &ns : reader.namespaceDeclarations()) {
                const QString key = ns.prefix().isEmpty()
                                        ? QStringLiteral("xmlns")
                                        : QStringLiteral("xmlns:") + ns.prefix().toString();
                element.attributes.append({key, ns.namespaceUri().toString()});
            }
            for (const auto &attribute : reader.attributes())
                element.attributes.append(
                    {attribute.qualifiedName().toString(), attribute.value().toString()});
            parent->children << element;
            stack << &parent->children.last();
            break;
        }
        case QXmlStreamReader::EndElement:
            stack.removeLast();
            break;
        case QXmlStreamReader::Characters: {
            const QString text = reader.text().toString();
            if (!reader.isCDATA() && isBlank(text))
                break;
            XmlNode node;
            node.kind = XmlNode::Text;
            node.text = text;
            parent->children << node;
            break;
        }
        case QXmlStreamReader::Comment: {
            XmlNode node;
            node.kind = XmlNode::Comment;
            node.text = reader.text().toString();
            parent->children << node;
            break;
        }
        case QXmlStreamReader::ProcessingInstruction: {
            XmlNode node;
            node.kind = XmlNode::ProcessingInstruction;
            node.name = reader.processingInstructionTarget().toString();
            node.text = reader.processingInstructionData().toString().trimmed();
            parent->children << node;
            break;
        }
        default:
            break;
        }
    }
    if (reader.hasError() || root().name.isEmpty()) {
        m_document = XmlNode();
        return false;
    }
    return true;
}

QByteArray XmlTree::serialize() const
{
    QString out;
    if (!m_declaration.isEmpty())
        out += m_declaration + m_newline;
    for (const XmlNode &node : m_document.children)
        writeNode(node, 0, m_indent, m_newline, out);
    return out.toUtf8();
}

XmlNode &XmlTree::root()
{
    for (XmlNode &node : m_document.children) {
        if (node.isElement())
            return node;
    }
    m_noRoot = XmlNode();
    return m_noRoot;
}

const XmlNode &XmlTree::root() const
{
    return const_cast<XmlTree *>(this)->root();
}

QList<XmlNode *> XmlTree::select(const QString &path)
{
    QList<XmlNode *> found;
    if (root().name.isEmpty())
        return found;
    selectFrom(root(), parsePath(path), 0, found);
    return found;
}
