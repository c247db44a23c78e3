"""Where the engine's sources can be changed, and how: read from the syntax tree of each file.

A site is a place in a file with its alternatives (the mutants), and the text to insert around it so that a switch (see switches.h)
chooses among them. Insertions nest; the only texts replaced are single operators and the qualifier of std::min, max and clamp.
"""
import bisect
import re
from dataclasses import dataclass, field

import clang.cindex as cindex
from clang.cindex import CursorKind as K, TypeKind as T


NUMBER = '\x01'


@dataclass(eq=False)
class Alternative:
    operator: str
    edits: list  # (start, end, text) in the file: what the mutant is


@dataclass(eq=False)
class Site:
    file: str
    start: int
    end: int
    alternatives: list
    open: str  # NUMBER stands for the first mutant's number, here and below
    close: str
    order: int = 0
    replacements: list = field(default_factory=list)  # (start, end, text)
    left_out: str = ''
    variable: str = ''  # the constant that it belongs to
    first: int = 0


@dataclass(eq=False)
class Constant:
    """A named constant or table, with a variant for each change of its initializer."""
    usr: str
    name: str
    file: str
    alternatives: list
    declaration: Site
    visible: str  # the only file that sees the variants; empty: all that see the constant


@dataclass(eq=False)
class Use:
    file: str
    start: int
    end: int
    usr: str
    runtime: bool
    order: int


COMPARISONS = {
    '<': ('Less', '<=', '>='),
    '<=': ('LessEqual', '<', '>'),
    '>': ('Greater', '>=', '<='),
    '>=': ('GreaterEqual', '>', '<'),
    '==': ('Equal', None, '!='),
    '!=': ('NotEqual', None, '=='),
}
ARITHMETIC = {
    '+': ('Plus', '-'), '-': ('Minus', '+'), '*': ('Times', '+'), '/': ('Divide', '*'), '%': ('Modulo', '*'),
    '&': ('And', '|'), '|': ('Or', '&'), '<<': ('ShiftLeft', '>>'), '>>': ('ShiftRight', '<<'),
}
NUMBERS = {
    T.BOOL, T.CHAR_U, T.UCHAR, T.CHAR16, T.CHAR32, T.USHORT, T.UINT, T.ULONG, T.ULONGLONG, T.CHAR_S, T.SCHAR, T.WCHAR, T.SHORT,
    T.INT, T.LONG, T.LONGLONG, T.FLOAT, T.DOUBLE, T.LONGDOUBLE,
}
FUNCTIONS = {K.FUNCTION_DECL, K.CXX_METHOD, K.CONSTRUCTOR, K.DESTRUCTOR, K.FUNCTION_TEMPLATE, K.CONVERSION_FUNCTION}
SKIPPED = {
    K.STATIC_ASSERT, K.ENUM_DECL, K.TYPEDEF_DECL, K.TYPE_ALIAS_DECL, K.TEMPLATE_TYPE_PARAMETER, K.TEMPLATE_NON_TYPE_PARAMETER,
    K.TYPE_REF, K.TEMPLATE_REF, K.NAMESPACE_REF,
}
LOOPS = {K.WHILE_STMT, K.FOR_STMT, K.DO_STMT, K.CXX_FOR_RANGE_STMT}
LIMITS = re.compile(r'U?INT(8|16|32|64|PTR)_M(AX|IN)$')
TOKEN = re.compile(
    r'''//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\])*"|'(?:\\.|[^'\\])*'|[A-Za-z_]\w*|\d[\w.']*|\s+|->|<<=|>>=|<<|>>|<=|>=|==|!=|&&|\|\||
    \+\+|--|[-+*/%&|^]=|::|.''', re.S | re.X)


class Context:
    def __init__(self, **values):
        self.runtime = False  # nothing around needs a constant
        self.boolean = False  # return gives a bool
        self.void = False
        self.negated = False  # another mutant turns the comparison round
        self.depth = 0
        self.__dict__.update(values)

    def but(self, **values):
        return Context(**{**self.__dict__, **values})


class Reader:
    """The sites, constants and uses of one file."""

    def __init__(self, root, file, index, arguments):
        self.file = file
        self.path = str(root / file)
        self.text = (root / file).read_bytes().decode('latin-1')
        self.sites, self.constants, self.uses = [], [], []
        self.order = 0
        self.tokens = [(m.start(), m.group()) for m in TOKEN.finditer(self.text)
                       if not m.group().isspace() and not m.group().startswith(('//', '/*'))]
        self.starts = [start for start, _ in self.tokens]
        language = ['-x', 'c++-header'] if file.endswith('.h') else []
        unit = index.parse(self.path, args=language + arguments)
        errors = [d for d in unit.diagnostics if d.severity >= cindex.Diagnostic.Error]
        if errors:
            raise SystemExit(f'{file}: {errors[0]}')
        for child in unit.cursor.get_children():
            if child.location.file and child.location.file.name == self.path:
                self.visit(child, Context())

    # ---- text

    def span(self, cursor):
        """Start and end of a cursor; a macro's expansion is its name."""
        extent = cursor.extent
        return extent.start.offset, extent.end.offset

    def source(self, cursor):
        start, end = self.span(cursor)
        return self.text[start:end]

    def token_at_or_after(self, offset):
        at = bisect.bisect_left(self.starts, offset)
        return self.tokens[at] if at < len(self.tokens) else (len(self.text), '')

    def token_before(self, offset):
        at = bisect.bisect_left(self.starts, offset) - 1
        return self.tokens[at] if at >= 0 else (-1, '')

    def closing(self, offset):
        """Of the bracket at offset, the one that closes it."""
        depth = 0
        for start, text in self.tokens:
            if start < offset:
                continue
            if text in '([{':
                depth += 1
            elif text in ')]}':
                depth -= 1
                if depth == 0:
                    return start
        return len(self.text)

    # ---- making sites

    @staticmethod
    def number(context):
        return f'mutate::Now({NUMBER})' if context.runtime else NUMBER

    def add(self, cursor, alternatives, call, context, extra='', **more):
        start, end = self.span(cursor)
        return self.add_span(start, end, alternatives, call, context, extra, **more)

    def add_span(self, start, end, alternatives, call, context, extra='', **more):
        self.order += 1
        site = Site(self.file, start, end, [a if isinstance(a, Alternative) else Alternative(*a) for a in alternatives],
                    f'mutate::{call}({self.number(context)}, ', extra + ')', order=self.order, **more)
        self.sites.append(site)
        return site

    def whole(self, cursor, operator, text):
        start, end = self.span(cursor)
        return Alternative(operator, [(start, end, text)])

    # ---- the walk

    def visit_all(self, cursors, context):
        for cursor in cursors:
            self.visit(cursor, context)

    def visit(self, cursor, context):
        kind = cursor.kind
        if kind in SKIPPED:
            return
        if kind in FUNCTIONS:
            return self.function(cursor, context)
        handler = self.HANDLERS.get(kind)
        if handler:
            return handler(self, cursor, context)
        self.visit_all(cursor.get_children(), context)

    def function(self, cursor, context):
        start, _ = self.span(cursor)
        head = self.text[start:cursor.location.offset]
        result = cursor.result_type.get_canonical().kind
        inner = Context(runtime='constexpr' not in head and cursor.kind != K.FUNCTION_TEMPLATE and 'template' not in head,
                        boolean=result == T.BOOL, void=result == T.VOID)
        self.visit_all(cursor.get_children(), inner)

    def lambda_expression(self, cursor, context):
        for child in cursor.get_children():
            if child.kind == K.COMPOUND_STMT:
                self.visit(child, context.but(boolean=None, void=False))

    def class_declaration(self, cursor, context):
        self.visit_all(cursor.get_children(), Context())

    def initializers(self, cursor):
        """The children of a declaration that stand behind its name and its bounds."""
        start, end = self.span(cursor)
        at = cursor.location.offset + len(cursor.spelling)
        while True:
            offset, text = self.token_at_or_after(at)
            if text != '[' or offset >= end:
                break
            at = self.closing(offset) + 1
        return [child for child in cursor.get_children() if self.span(child)[0] >= at]

    def field_declaration(self, cursor, context):
        self.visit_all(self.initializers(cursor), context)

    def variable(self, cursor, context):
        initializers = self.initializers(cursor)
        if initializers and self.is_constant(cursor, initializers[-1], context):
            return self.constant(cursor, initializers[-1], context)
        self.visit_all(initializers, context)

    def is_constant(self, cursor, initializer, context):
        start, _ = self.span(cursor)
        head = self.text[start:cursor.location.offset]
        if 'constexpr' in head:
            return True
        parent = cursor.semantic_parent.kind
        const = 'const' in re.findall(r'\w+', head) and cursor.type.kind != T.LVALUEREFERENCE
        if const and parent in (K.NAMESPACE, K.TRANSLATION_UNIT):
            return '*' not in head
        return const and cursor.type.kind in (T.CONSTANTARRAY, T.INCOMPLETEARRAY)

    def declaration_statement(self, cursor, context):
        self.visit_all(cursor.get_children(), context)

    def constant(self, cursor, initializer, context):
        alternatives = Variants(self, initializer).alternatives
        if not alternatives:
            return
        start, end = self.span(cursor)
        name = cursor.spelling
        init_start, init_end = self.span(initializer)
        head = self.text[start:cursor.location.offset]
        constexpr = 'constexpr' in head
        parent = cursor.semantic_parent.kind
        in_class = parent in (K.CLASS_DECL, K.STRUCT_DECL, K.CLASS_TEMPLATE)
        local = parent in FUNCTIONS
        static = 'static ' if in_class or (local and constexpr) else ''
        semicolon, _ = self.token_at_or_after(end)
        while self.text[semicolon] != ';':
            semicolon += 1
        texts = [apply_edits(self.text, a.edits, init_start, init_end) for a in alternatives]
        flat = re.sub(r'\s*\n\s*', ' ', ', '.join(re.sub(r'//[^\n]*', '', t) for t in texts))
        declare = f' {static}{"constexpr" if constexpr else "const"} mutate::Bare<decltype({name})> {name}_variants[] = {{{flat}}};'
        self.order += 1
        site = Site(self.file, semicolon + 1, semicolon + 1, alternatives, declare, '', order=self.order,
                    variable=cursor.get_usr())
        self.sites.append(site)
        visible = self.file if not constexpr and not local else ''
        self.constants.append(Constant(cursor.get_usr(), name, self.file, alternatives, site, visible))

    def reference(self, cursor, context):
        target = cursor.referenced
        if target is None:
            return
        if target.kind == K.VAR_DECL:
            start, end = self.span(cursor)
            if self.text[start:end].split('::')[-1] == target.spelling:
                self.order += 1
                self.uses.append(Use(self.file, start, end, target.get_usr(), context.runtime, self.order))
        elif target.kind == K.ENUM_CONSTANT_DECL:
            other = self.other_enumerator(cursor, target)
            if other:
                self.add(cursor, [self.whole(cursor, 'enumerator', other)], 'Pick', context, ', ' + other)

    def other_enumerator(self, cursor, target):
        """The next enumerator, written as this one is."""
        names = [c.spelling for c in target.semantic_parent.get_children() if c.kind == K.ENUM_CONSTANT_DECL]
        written = self.source(cursor)
        if len(names) < 2 or not re.fullmatch(r'[\w:]+', written):
            return None
        other = names[(names.index(target.spelling) + 1) % len(names)]
        return written[:len(written) - len(target.spelling)] + other

    # ---- statements

    def compound(self, cursor, context):
        for child in cursor.get_children():
            self.statement(child, context)

    def statement(self, cursor, context):
        if cursor.kind.is_expression():
            self.droppable(cursor, 'call or assignment dropped', context)
        elif cursor.kind in (K.BREAK_STMT, K.CONTINUE_STMT):
            return self.droppable(cursor, 'jump dropped', context)
        self.visit(cursor, context)

    def droppable(self, cursor, operator, context):
        start, end = self.span(cursor)
        semicolon, text = self.token_at_or_after(end)
        if text != ';':
            return
        self.order += 1
        self.sites.append(Site(self.file, start, semicolon + 1, [Alternative(operator, [(start, semicolon, '')])],
                               f'{{if (mutate::Keep({self.number(context)})) ', '}', order=self.order))

    def parenthesis(self, cursor, offset):
        """The span inside the parentheses of an if, a while, a switch or a for."""
        while True:
            start, text = self.token_at_or_after(offset)
            if text == '(':
                return start + 1, self.closing(start)
            offset = start + 1

    def split_head(self, cursor):
        """The children in the parentheses, and those behind them."""
        start, end = self.parenthesis(cursor, self.span(cursor)[0])
        children = list(cursor.get_children())
        return [c for c in children if self.span(c)[0] < end], [c for c in children if self.span(c)[0] >= end], (start, end)

    def if_statement(self, cursor, context):
        head, bodies, (_, end) = self.split_head(cursor)
        for child in head:
            if child.kind.is_expression() and self.token_at_or_after(self.span(child)[1])[0] == end and not self.declares(head, child):
                self.condition(child, ('true', 'false'), context)
            elif not child.kind.is_expression():
                self.condition_variable(child, end, context)
        for body in bodies:
            self.statement(body, context)

    def declares(self, head, expression):
        """Whether an expression is the implicit use of a variable declared as the condition."""
        start, end = self.span(expression)
        return any(not c.kind.is_expression() and self.span(c)[0] <= start and end <= self.span(c)[1] for c in head)

    def condition_variable(self, cursor, end, context):
        declared = [cursor] if cursor.kind == K.VAR_DECL else [c for c in cursor.walk_preorder() if c.kind == K.VAR_DECL][:1]
        for variable in declared:
            initializers = self.initializers(variable)
            if initializers and self.token_at_or_after(self.span(variable)[1])[0] == end:
                self.add(initializers[-1], [self.whole(initializers[-1], 'condition', '{}')], 'Nothing', context)
        self.visit(cursor, context)

    def condition(self, cursor, values, context):
        call = {('true', 'false'): 'TrueOrFalse', ('true',): 'True', ('false',): 'False'}[values]
        self.add(cursor, [self.whole(cursor, 'condition' if len(values) == 2 else 'operand or loop condition', v) for v in values],
                 call, context)
        self.visit(cursor, context.but(negated=True))

    def while_statement(self, cursor, context):
        head, bodies, (_, end) = self.split_head(cursor)
        for child in head:
            if child.kind.is_expression() and not self.declares(head, child):
                self.condition(child, ('false',), context)
            elif not child.kind.is_expression():
                self.visit(child, context)
        for body in bodies:
            self.statement(body, context)

    def do_statement(self, cursor, context):
        body, head = list(cursor.get_children())
        self.statement(body, context)
        self.condition(head, ('false',), context)

    def for_statement(self, cursor, context):
        head, bodies, (start, end) = self.split_head(cursor)
        semicolons, depth = [], 0
        for offset, text in self.tokens:
            if start <= offset < end:
                depth += (text in '([{') - (text in ')]}')
                if text == ';' and depth == 0:
                    semicolons.append(offset)
        for child in head:
            at = self.span(child)[0]
            if child.kind.is_expression() and len(semicolons) == 2 and semicolons[0] < at < semicolons[1]:
                self.condition(child, ('false',), context)
            else:
                self.visit(child, context)
        for body in bodies:
            self.statement(body, context)

    def range_statement(self, cursor, context):
        children = list(cursor.get_children())
        self.visit_all(children[:-1], context)
        self.statement(children[-1], context)

    def switch_statement(self, cursor, context):
        head, bodies, _ = self.split_head(cursor)
        cases = []
        self.find_cases(bodies, cases)
        for child in head:
            if child.kind.is_expression() and cases:
                alternatives = []
                for case in cases:
                    label = list(case.get_children())[0]
                    start, end = self.span(case)[0], self.token_at_or_after(self.span(label)[1])[0] + 1
                    alternatives.append(Alternative('case dropped', [(start, end, '')]))
                labels = ', '.join(self.source(list(case.get_children())[0]) for case in cases)
                self.add(child, alternatives, 'Unlisted', context, f', {{{labels}}}')
            self.visit(child, context)
        for body in bodies:
            self.statement(body, context)

    def find_cases(self, cursors, cases):
        for cursor in cursors:
            if cursor.kind == K.SWITCH_STMT:
                continue
            if cursor.kind == K.CASE_STMT:
                cases.append(cursor)
            self.find_cases(cursor.get_children(), cases)

    def case_statement(self, cursor, context):
        for child in list(cursor.get_children())[1:]:
            self.statement(child, context)

    def default_statement(self, cursor, context):
        for child in cursor.get_children():
            self.statement(child, context)

    def return_statement(self, cursor, context):
        for child in cursor.get_children():
            boolean = context.boolean or (context.boolean is None and child.type.get_canonical().kind == T.BOOL)
            start, end = self.span(child)
            if context.void:
                self.order += 1
                self.sites.append(Site(self.file, start, end, [Alternative('call or assignment dropped', [(start, end, '')])],
                                       f'mutate::Keep({self.number(context)}) ? ', ' : void()', order=self.order))
            elif boolean and child.kind not in (K.CXX_BOOL_LITERAL_EXPR, K.INIT_LIST_EXPR):
                text = self.text[start:end]
                self.add(child, [self.whole(child, 'returned bool', f'!({text})')], 'Not', context)
            self.visit(child, context.but(negated=bool(boolean)))

    # ---- expressions

    def operands(self, cursor):
        """Of a binary operator, also an overloaded one: the operands and the operator between them."""
        if cursor.kind == K.CALL_EXPR:
            if not re.fullmatch(r'operator\W+', cursor.spelling):
                return None
            arguments = list(cursor.get_arguments())
        else:
            arguments = list(cursor.get_children())
        if len(arguments) != 2 or any(a is None for a in arguments):
            return None
        start, text = self.token_at_or_after(self.span(arguments[0])[1])
        if start >= self.span(arguments[1])[0]:
            return None
        return arguments[0], arguments[1], start, text

    def binary(self, cursor, context):
        found = self.operands(cursor)
        if not found:
            return self.call(cursor, context) if cursor.kind == K.CALL_EXPR else self.visit_all(cursor.get_children(), context)
        left, right, offset, text = found
        inner = context.but(negated=False)
        if text in ('&&', '||'):
            dropped = 'true' if text == '&&' else 'false'
            for operand in (left, right):
                if self.is_chain(operand, text):
                    self.visit(operand, inner)
                else:
                    self.condition(operand, (dropped,), inner)
            return
        if text in COMPARISONS:
            self.comparison(cursor, offset, text, context)
        elif text in ARITHMETIC and self.is_number(left) and self.is_number(right):
            name, other = ARITHMETIC[text]
            self.add(cursor, [Alternative('arithmetic', [(offset, offset + len(text), other)])], name, context,
                     replacements=[(offset, offset + len(text), ',')])
        elif text in ('+=', '-=') and self.is_number(left) and self.is_number(right):
            other = '-=' if text == '+=' else '+='
            self.add(right, [Alternative('arithmetic', [(offset, offset + 2, other)])], 'Opposite', context)
        self.visit_all((left, right), inner)

    def is_chain(self, cursor, operator):
        """Whether an operand is itself of the same operator: then its own operands are dropped one by one."""
        while cursor.kind == K.UNEXPOSED_EXPR and len(list(cursor.get_children())) == 1:
            cursor = next(cursor.get_children())
        found = self.operands(cursor) if cursor.kind == K.BINARY_OPERATOR else None
        return bool(found) and found[3] == operator

    def comparison(self, cursor, offset, text, context):
        name, near, opposite = COMPARISONS[text]
        end = offset + len(text)
        alternatives = [Alternative('comparison', [(offset, end, near)])] if near else []
        if not context.negated:
            alternatives.append(Alternative('comparison turned round', [(offset, end, opposite)]))
        if alternatives:
            self.add(cursor, alternatives, name, context, replacements=[(offset, end, ',')])

    def is_number(self, cursor):
        return cursor.type.get_canonical().kind in NUMBERS

    def call(self, cursor, context):
        start, _ = self.span(cursor)
        match = re.match(r'std::(min|max|clamp)\b', self.text[start:start + 12])
        if match and cursor.spelling in ('min', 'max', 'clamp'):
            name = match.group(1)
            others = {'min': ['std::max'], 'max': ['std::min'], 'clamp': ['std::max', 'std::min']}[name]
            if name == 'clamp':
                arguments = [self.source(a) for a in cursor.get_arguments()]
                texts = [f'std::max({arguments[0]}, {arguments[1]})', f'std::min({arguments[0]}, {arguments[2]})']
                alternatives = [self.whole(cursor, 'min, max, clamp', t) for t in texts]
            else:
                alternatives = [Alternative('min, max, clamp', [(start, start + 5 + len(name), others[0])])]
            self.order += 1
            self.sites.append(Site(self.file, start, start, alternatives, '', '', order=self.order,
                                   replacements=[(start, start + 5, f'mutate::Other<{NUMBER}>::')]))
        self.visit_all(cursor.get_children(), context.but(negated=False))

    def conditional(self, cursor, context):
        children = list(cursor.get_children())
        self.condition(children[0], ('true', 'false'), context)
        self.visit_all(children[1:], context.but(negated=False))

    def unary(self, cursor, context):
        start, end = self.span(cursor)
        children = list(cursor.get_children())
        if self.text[start] == '-' and self.text[start + 1] != '-' and self.is_number(cursor):
            self.add(cursor, [Alternative('arithmetic', [(start, start + 1, '')])], 'Opposite', context)
        self.visit_all(children, context.but(negated=context.negated and self.text[start] == '!'))

    def integer(self, cursor, context):
        start, _ = self.span(cursor)
        start, text = self.token_at_or_after(start)
        end = start + len(text)
        call, values = self.integer_values(text)
        self.add_span(start, end, [Alternative('constant', [(start, end, v)]) for v in values], call, context)

    @staticmethod
    def integer_values(text):
        if LIMITS.match(text):
            return 'Half', [f'{text} / 2']
        if not text[0].isdigit():
            return 'Up', [f'{text} + 1']
        number = int(re.sub(r"[uUlL']", '', text), 0)
        suffix = ''.join(c for c in text if c in 'uUlL') if not text.startswith('0x') else 'u' if text.endswith('u') else ''
        if number in (0, 1):
            return 'UpDown', [f'{number + 1}{suffix}', f'{number - 1}{suffix}']
        return 'UpDownZero', [f'{number + 1}{suffix}', f'{number - 1}{suffix}', f'0{suffix}']

    def floating(self, cursor, context):
        self.add(cursor, [self.whole(cursor, 'constant', f'({self.source(cursor)} + 1)')], 'Up', context)

    def character(self, cursor, context):
        self.add(cursor, [self.whole(cursor, 'constant', f'({self.source(cursor)} + 1)')], 'Up', context)

    def string(self, cursor, context):
        if self.source(cursor) not in ('""', ''):
            self.add(cursor, [self.whole(cursor, 'constant', '""')], 'Emptied', context)

    def boolean_literal(self, cursor, context):
        other = 'false' if self.source(cursor) == 'true' else 'true'
        self.add(cursor, [self.whole(cursor, 'constant', other)], 'Not', context)

    HANDLERS = {
        K.LAMBDA_EXPR: lambda_expression,
        K.CLASS_DECL: class_declaration,
        K.STRUCT_DECL: class_declaration,
        K.CLASS_TEMPLATE: class_declaration,
        K.FIELD_DECL: field_declaration,
        K.PARM_DECL: field_declaration,
        K.VAR_DECL: variable,
        K.DECL_REF_EXPR: reference,
        K.COMPOUND_STMT: compound,
        K.IF_STMT: if_statement,
        K.WHILE_STMT: while_statement,
        K.DO_STMT: do_statement,
        K.FOR_STMT: for_statement,
        K.CXX_FOR_RANGE_STMT: range_statement,
        K.SWITCH_STMT: switch_statement,
        K.CASE_STMT: case_statement,
        K.DEFAULT_STMT: default_statement,
        K.RETURN_STMT: return_statement,
        K.BINARY_OPERATOR: binary,
        K.COMPOUND_ASSIGNMENT_OPERATOR: binary,
        K.CALL_EXPR: binary,
        K.CONDITIONAL_OPERATOR: conditional,
        K.UNARY_OPERATOR: unary,
        K.INTEGER_LITERAL: integer,
        K.FLOATING_LITERAL: floating,
        K.CHARACTER_LITERAL: character,
        K.STRING_LITERAL: string,
        K.CXX_BOOL_LITERAL_EXPR: boolean_literal,
    }


class Variants:
    """The changes of a constant's initializer: each constant in it, each row of a table, each operand of a set of bits."""

    def __init__(self, reader, initializer):
        self.reader = reader
        self.alternatives = []
        self.seen = set()
        self.visit(initializer)

    def add(self, operator, *edits):
        if edits not in self.seen:
            self.seen.add(edits)
            self.alternatives.append(Alternative(operator, list(edits)))

    def visit(self, cursor):
        reader, kind = self.reader, cursor.kind
        start, end = reader.span(cursor)
        if kind in SKIPPED or kind == K.LAMBDA_EXPR:
            return
        if kind == K.INIT_LIST_EXPR:
            self.rows(cursor)
        elif kind == K.INTEGER_LITERAL:
            start, text = reader.token_at_or_after(start)
            for value in reader.integer_values(text)[1]:
                if not value.startswith('-'):  # the cell may have no sign
                    self.add('constant', (start, start + len(text), value))
        elif kind in (K.FLOATING_LITERAL, K.CHARACTER_LITERAL):
            self.add('constant', (start, end, f'({reader.text[start:end]} + 1)'))
        elif kind == K.STRING_LITERAL:
            self.string(start, end)
        elif kind == K.CXX_BOOL_LITERAL_EXPR:
            self.add('constant', (start, end, 'false' if reader.text[start:end] == 'true' else 'true'))
        elif kind == K.DECL_REF_EXPR and cursor.referenced and cursor.referenced.kind == K.ENUM_CONSTANT_DECL:
            other = reader.other_enumerator(cursor, cursor.referenced)
            if other:
                self.add('enumerator', (start, end, other))
        elif kind == K.BINARY_OPERATOR:
            found = reader.operands(cursor)
            if found and found[3] == '|':
                left, right = reader.span(found[0]), reader.span(found[1])
                self.add('operand dropped', (left[0], right[0], ''))
                self.add('operand dropped', (left[1], right[1], ''))
        for child in cursor.get_children():
            self.visit(child)

    def string(self, start, end):
        """Of the same length, for arrays: another first character."""
        text = self.reader.text[start:end]
        if len(text) > 2 and text[1] != '\\':
            self.add('constant', (start, end, '"' + ('?' if text[1] != '?' else '!') + text[2:]))

    def rows(self, cursor):
        """A table's row dropped (the one beside it stands twice, so that the table keeps its size), and two rows' first cells, or
        whole rows of one cell, exchanged."""
        if cursor.type.kind not in (T.CONSTANTARRAY, T.INCOMPLETEARRAY):
            return
        rows = list(cursor.get_children())
        spans = [self.reader.span(row) for row in rows]
        text = self.reader.text
        for i in range(len(rows)):
            if len(rows) > 1:
                beside = spans[i - 1] if i > 0 else spans[1]
                self.add('row dropped', (*spans[i], text[beside[0]:beside[1]]))
        for (first, second) in zip(rows, rows[1:]):
            a, b = self.key(first), self.key(second)
            if text[a[0]:a[1]] != text[b[0]:b[1]]:
                self.add('rows exchanged', (*a, text[b[0]:b[1]]), (*b, text[a[0]:a[1]]))

    def key(self, row):
        while row.kind == K.UNEXPOSED_EXPR and len(list(row.get_children())) == 1:
            row = list(row.get_children())[0]
        if row.kind == K.INIT_LIST_EXPR:
            cells = list(row.get_children())
            return self.reader.span(cells[0]) if cells else self.reader.span(row)
        return self.reader.span(row)


def apply_edits(text, edits, start=0, end=None):
    """The text from start to end with the edits made."""
    end = len(text) if end is None else end
    parts, at = [], start
    for first, last, new in sorted(edits):
        parts += [text[at:first], new]
        at = last
    parts.append(text[at:end])
    return ''.join(parts)
