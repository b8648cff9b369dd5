#pragma once

#include <QString>
#include <QStringList>

#include <functional>

// Text surgery on the C templates. A block is the text from a line "[#name]" to a line
// "[/#name]"; blocks are kept (tags removed), dropped, cloned or edited in place, and single
// lines get new right-hand sides. Every operation works on one string by reference.
//
// Blocks are found by a small scanner that gives the same spans as the greedy pattern
// "\[#tag\] *\n(.+)\[/#tag\] *\n+": the first opening tag that has a closing tag behind it,
// and the last closing tag behind that opening. Lines are rewritten with regular expressions
// on the small texts of one section.
namespace TemplateEngine {

// How the tags of a block end.
enum class Tail {
    Blanks,   // "] *\n+": blanks may follow a tag; all line breaks behind the block go with it
    Optional, // "] *\n*": as Blanks, but the block may also end the text
    Strict,   // "]\n+": nothing may stand between the bracket and the line break
};

// The place of a block in a text; all offsets are character positions.
struct Block
{
    int start = -1;     // the "[" of the opening tag
    int bodyStart = -1; // first character behind the opening line
    int bodyEnd = -1;   // the "[" of the closing tag
    int end = -1;       // behind the closing tag and the line breaks that go with it
    bool isValid() const { return start >= 0; }
};

// The first block `tag` at or behind `from`; an invalid Block when there is none.
Block findBlock(const QString &text, const QString &tag, Tail tail = Tail::Blanks, int from = 0);
// The body of a found block, its last line break included.
QString blockBody(const QString &text, const Block &block);

// Every block `tag` is replaced by its body and one line break, so that exactly one blank
// line follows it. False when the text has no such block.
bool keepBlock(QString &text, const QString &tag, Tail tail = Tail::Blanks);
// Every block `tag` is removed with the line breaks behind it. False when there is none.
bool dropBlock(QString &text, const QString &tag, Tail tail = Tail::Blanks);
// keepBlock when `on`, else dropBlock; false, with nothing changed, when there is no block.
bool gateBlock(QString &text, const QString &tag, bool on, Tail tail = Tail::Blanks);
// Keeps the block when one of `names` is assigned (tested in order), replacing it by its
// body and, with `withBreak`, one more line break; drops it otherwise. False when missing.
bool gateBlockBySignal(QString &text, const QStringList &names,
                       const std::function<bool(const QString &)> &isAssigned,
                       const QString &tag, bool withBreak);

// Edits one block in place: dropped when `keep` is false; otherwise its body (plus a line
// break) is handed to `edit`, blank lines before closing braces are removed, and the block
// is replaced by the result. When `edit` fails the text stays as it was and false returns.
bool editBlock(QString &text, const QString &tag, bool keep,
               const std::function<bool(QString &body)> &edit, Tail tail = Tail::Blanks);

// Replaces the block by `count` copies of its body, each rewritten by `perCopy`, followed by
// one blank line; no copies remove the block. False when missing or when a copy fails.
bool repeatBlock(QString &text, const QString &tag, int count,
                 const std::function<bool(QString &copy, int index)> &perCopy,
                 Tail tail = Tail::Blanks);

// "lhs = value;" for every line matching lhs\s*=\s*\w+;? (dots of lhs match any character).
// An empty value or no match leaves the text alone; returns whether a line was rewritten.
bool rewriteAssignment(QString &text, const QString &lhs, const QString &value);

// Rewrites every call fn(a1, ..., an); whose arguments are single words. The first argument
// stays as written when `keepFirst`; `args` gives the others (or all of them), an empty entry
// keeping the template's argument. Returns whether a call was found.
bool rewriteCall(QString &text, const QString &fn, const QStringList &args,
                 bool keepFirst = true);

// Replaces every match of a pattern (dot matches line breaks, greedy) by `after`, in which
// "\1".."\9" stand for captures; returns whether there was a match.
bool replacePattern(QString &text, const QString &pattern, const QString &after);
// Only the last match; returns whether there was one.
bool replaceLastMatch(QString &text, const QString &pattern, const QString &after);
// Whether the pattern matches anywhere.
bool containsPattern(const QString &text, const QString &pattern);

// Blanks and blank lines in front of every "}" go: " *\n+}" becomes "\n}".
void closeBlanks(QString &text);
// Blank lines behind every "{" go: "{ *\n+" becomes "{\n".
void openBlanks(QString &text);

// A replacement text as the substitution of a regular expression engine reads it: a
// backslash and a digit stand for that capture (captures[0] is the whole match).
QString expandCaptures(const QString &after, const QStringList &captures);

} // namespace TemplateEngine
