"""Finds the places in a C++ source where one small change gives a different program, for tools/mutate.py.

The source is cut into words, not parsed: it counts on the project's own format (blanks on both sides of an operator of two
sides, none inside the angles of a template). What it takes wrongly for code does not compile and costs one compilation.
"""
import re
from collections import namedtuple

# start and end are positions in the text; new is the text there after the change.
Change = namedtuple("Change", "kind start end new")
Word = namedtuple("Word", "kind text start end")

KINDS = ("comparison", "constant", "negation", "statement", "argument", "arithmetic")

WORDS = re.compile(r"""
    (?P<comment>//[^\n]* | /\*.*?\*/)
  | (?P<directive>^[ \t]*\#(?:\\\n|[^\n])*)
  | (?P<string>(?:u8|u|U|L)?R"(?P<mark>[^()\s]*)\(.*?\)(?P=mark)" | (?:u8|u|U|L)?"(?:\\.|[^"\\\n])*")
  | (?P<char>(?:u8|u|U|L)?'(?:\\.|[^'\\\n])+')
  | (?P<number>0[xX][0-9a-fA-F']+[uUlLzZ]* | (?:\d[\d']*\.?[\d']*|\.\d+)(?:[eE][+-]?\d+)?[uUlLfFzZ]*)
  | (?P<name>[A-Za-z_]\w*)
  | (?P<sign><=>|->\*|<<=|>>=|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|[^\s\w])
""", re.X | re.S | re.M)

COMPARISONS = {"<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"), "==": ("!=",), "!=": ("==",),
               "&&": ("||",), "||": ("&&",)}
ARITHMETIC = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=",
              "++": "--", "--": "++"}
# A statement that begins with one of these is a declaration or has no effect of its own.
NO_STATEMENT = set("using typedef namespace template struct class enum union static const constexpr auto extern friend inline "
                   "virtual explicit operator static_assert assert mutable volatile public private protected "
                   "unsigned signed int double float bool char long short void goto return".split())
TYPES = set("int double float bool char long short void auto const unsigned signed typename class".split())
KEYWORDS = set("if for while switch catch return sizeof alignof decltype noexcept static_assert assert constexpr "
               "static_cast reinterpret_cast const_cast dynamic_cast".split())
# The same with their arguments swapped.
EITHER_WAY = {"min", "max", "hypot"}
OPENING = {"(": ")", "[": "]", "{": "}"}


def words_of(text):
    """The words of the code, without comments and directives."""
    words = []
    for match in WORDS.finditer(text):
        if match.lastgroup not in ("comment", "directive"):
            kind = "string" if match.lastgroup == "mark" else match.lastgroup
            words.append(Word(kind, match.group(), match.start(), match.end()))
    return words


class Source:
    """One source and the matching brackets in it."""

    def __init__(self, text):
        self.text = text
        self.words = words_of(text)
        self.closing = {}
        self.asserted = set()
        open_at = []
        for i, word in enumerate(self.words):
            if word.kind != "sign":
                continue
            if word.text in OPENING:
                open_at.append(i)
            elif open_at and word.text == OPENING[self.words[open_at[-1]].text]:
                self.closing[open_at.pop()] = i
        for i, word in enumerate(self.words):
            if word.text in ("assert", "static_assert", "Q_ASSERT", "reserve") and i + 1 in self.closing:
                self.asserted.update(range(i, self.closing[i + 1] + 1))

    def word(self, i):
        return self.words[i].text if 0 <= i < len(self.words) else ""

    def loose(self, i):
        """A binary operator: blanks on both sides of it."""
        word = self.words[i]
        return self.text[word.start - 1:word.start].isspace() and self.text[word.end:word.end + 1].isspace()

    def joins_texts(self, i):
        return any(0 <= at < len(self.words) and self.words[at].kind == "string" for at in (i - 1, i + 1))

    def touches(self, i):
        """No space between this word and the one before it."""
        return i > 0 and self.words[i - 1].end == self.words[i].start

    def in_angles(self, i):
        """A number that is a template argument: array<int, 4>."""
        while i > 0 and self.words[i].kind in ("name", "number") or self.word(i) in (",", "::"):
            i -= 1
        return self.word(i) == "<" and self.touches(i)

    def sizes_array(self, i):
        """The 32 of `char buffer[32]`."""
        return (self.word(i - 1) == "[" and self.word(i + 1) == "]" and i > 3 and self.words[i - 2].kind == "name" and
                self.words[i - 3].kind == "name")


def number_after(text):
    """Other numbers to replace one with, or none if it is not a plain number."""
    match = re.fullmatch(r"(.*?)([uUlLzZ]*)", text)
    body, suffix = match.group(1).replace("'", ""), match.group(2)
    if re.fullmatch(r"\d+", body) and (len(body) == 1 or body[0] != "0"):
        value = int(body)
        return [str(value + 1) + suffix] + ([str(value - 1) + suffix] if value else [])
    if re.fullmatch(r"0[xX][0-9a-fA-F]+", body):
        return [hex(int(body, 16) + 1) + suffix]
    single = "f" if body[-1] in "fF" else ""
    try:
        value = float(body.rstrip("fF"))
        return [repr(value + 1) + single] + ([repr(value * 0.9) + single] if value else [])
    except ValueError:
        return []


def string_after(text):
    if "R\"" in text[:3]:
        at = text.rindex(")")
        return text[:at] + "~" + text[at:]
    return text[:-1] + "~\""


def expression_changes(source):
    """Operators, constants and the negation sign."""
    for i, word in enumerate(source.words):
        if i in source.asserted or source.word(i - 1) == "operator":
            continue
        if word.kind == "sign":
            if word.text in COMPARISONS and source.loose(i):
                yield "comparison", [Change("comparison", word.start, word.end, new) for new in COMPARISONS[word.text]]
            elif word.text in ARITHMETIC and (source.loose(i) or word.text in ("++", "--")) and not source.joins_texts(i):
                yield "arithmetic", [Change("arithmetic", word.start, word.end, ARITHMETIC[word.text])]
            elif word.text == "!" and i + 1 < len(source.words) and source.touches(i + 1):
                yield "negation", [Change("negation", word.start, word.end, "")]
        elif word.kind == "number":
            if not source.in_angles(i) and not source.sizes_array(i):
                yield "constant", [Change("constant", word.start, word.end, new) for new in number_after(word.text)]
        elif word.kind == "string":
            if source.word(i - 1) != "extern" and not source.text[word.start - 1] == "_":
                yield "constant", [Change("constant", word.start, word.end, string_after(word.text))]
        elif word.kind == "char":
            yield "constant", [Change("constant", word.start, word.end, "'#'" if word.text == "'~'" else "'~'")]
        elif word.text in ("true", "false"):
            new = "false" if word.text == "true" else "true"
            yield "constant", [Change("constant", word.start, word.end, new)]


def condition_changes(source):
    """A negated condition."""
    for i, word in enumerate(source.words):
        if word.text not in ("if", "while") or source.word(i + 1) != "(" or i + 1 not in source.closing:
            continue
        first, last = i + 1, source.closing[i + 1]
        inside = [w.text for w in source.words[first + 1:last]]
        if ";" in inside or "=" in inside:  # it contains a declaration
            continue
        start, end = source.words[first].end, source.words[last].start
        yield "negation", [Change("negation", start, end, "!(" + source.text[start:end] + ")")]


def arguments_of(source, first, last):
    """The words of each argument between two brackets, as (from, to)."""
    found, start, i = [], first + 1, first + 1
    angles = 0
    while i < last:
        text = source.word(i)
        if i in source.closing:
            i = source.closing[i]
        elif text == "<" and source.touches(i) and not source.loose(i):
            angles += 1
        elif text == ">" and angles:
            angles -= 1
        elif text == "," and angles == 0:
            found.append((start, i))
            start = i + 1
        i += 1
    return found + [(start, last)]


def declares(source, first, last):
    """Whether the words are a parameter with its type rather than an argument."""
    words = source.words[first:last]
    if not words or words[0].text in TYPES:
        return True
    at = first + 1
    while at < last and source.word(at) == "::" and source.words[at + 1].kind == "name":
        at += 2
    if source.word(at) == "<" and source.touches(at):
        while at < last and source.word(at) != ">":
            at += 1
        at += 1
    while at < last and source.word(at) in ("&", "*", "&&") and source.touches(at):
        at += 1
    return words[0].kind == "name" and at < last and at > first and source.words[at].kind == "name"


def argument_changes(source):
    """Two neighbouring arguments of a call swapped."""
    for i, word in enumerate(source.words):
        if word.text not in ("(", "{") or i not in source.closing or not i or i in source.asserted:
            continue
        before = source.words[i - 1]
        if word.text == "(" and (before.kind != "name" or before.text in KEYWORDS):
            continue
        if before.text in EITHER_WAY or word.text == "{" and not source.touches(i):
            continue
        arguments = arguments_of(source, i, source.closing[i])
        if len(arguments) < 2 or any(a == b or declares(source, a, b) for a, b in arguments):
            continue
        spans = [(source.words[a].start, source.words[b - 1].end) for a, b in arguments]
        for one, two in zip(spans, spans[1:]):
            left, right = source.text[one[0]:one[1]], source.text[two[0]:two[1]]
            if left != right:
                new = right + source.text[one[1]:two[0]] + left
                yield "argument", [Change("argument", one[0], two[1], new)]


def own_start(source, start, end):
    """Where a statement begins after `if (...)`, `else`, `case 3:` and the like."""
    while start < end:
        text = source.word(start)
        if text in ("if", "for", "while", "switch"):
            start += 2 if source.word(start + 1) == "constexpr" else 1
            start = source.closing.get(start, end) + 1
        elif text in ("else", "do"):
            start += 1
        elif text == "case":
            while start < end and source.word(start) != ":":
                start += 1
            start += 1
        elif text == "default" and source.word(start + 1) == ":":
            start += 2
        else:
            break
    return start


def is_statement(source, start, end):
    """Whether the words are an action, not a declaration."""
    text = source.word(start)
    if end == start + 1 and text == "return":
        return True
    if start >= end or text in NO_STATEMENT or text == "[" or text == "}":
        return False
    if any(word.text == "reserve" for word in source.words[start:end]):  # affects only speed
        return False
    return text in ("break", "continue", "throw", "delete") or not declares(source, start, end)


def block_kind(source, start, brace):
    head = [word.text for word in source.words[start:brace]]
    if head and head[0] in ("namespace", "extern"):
        return "outside"
    if "(" not in head and any(text in ("struct", "class", "enum", "union") for text in head):
        return "outside"
    return "inside"


def statement_changes(source):
    """A removed statement."""
    blocks = []  # (kind, where the enclosing statement began)
    start = i = 0
    parens = [0]
    while i < len(source.words):
        text = source.word(i)
        if text in ("(", "["):
            parens[-1] += 1
        elif text in (")", "]"):
            parens[-1] -= 1
        elif text == "{":
            blocks.append((block_kind(source, start, i), start))
            parens.append(0)
            start = i + 1
        elif text == "}" and blocks:
            before = blocks.pop()[1]
            parens.pop()
            inner = parens[-1] > 0 or source.word(i + 1) in (")", ",", ";", ".", "(", "]", "}", ":", "?", "==", "+")
            start = before if inner and source.word(i + 1) != "}" else i + 1
        elif text == ";" and parens[-1] == 0:
            first = own_start(source, start, i)
            if blocks and blocks[-1][0] == "inside" and is_statement(source, first, i):
                yield "statement", [Change("statement", source.words[first].start, source.words[i].start, "")]
            start = i + 1
        i += 1


def changes_of(text):
    """Every place of the text where a change is possible: a list of (kind, [Change, ...]), in the order of the text."""
    source = Source(text)
    found = []
    for finder in (expression_changes, condition_changes, argument_changes, statement_changes):
        found.extend(place for place in finder(source) if place[1])
    return sorted(found, key=lambda place: (place[1][0].start, place[0], place[1][0].end))
