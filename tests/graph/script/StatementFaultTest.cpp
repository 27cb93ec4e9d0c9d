#include <gtest/gtest.h>

#include "tests/graph/script/ScriptSupport.h"

namespace {

struct StatementCase {
    const char* code;
    const char* error;
};

void PrintTo(const StatementCase& row, std::ostream* out) { *out << row.code; }

class StatementFault : public testing::TestWithParam<StatementCase> {};

TEST_P(StatementFault, IsReportedWhereItIs) { EXPECT_EQ(codeError(GetParam().code), GetParam().error); }

INSTANTIATE_TEST_SUITE_P(
    Simple, StatementFault,
    testing::Values(
        StatementCase{"a=", "line 1, column 3: 1002 Syntax error"},
        StatementCase{"a=2:b=(1", "line 1, column 9: 1006 Expected ')'"},
        StatementCase{"a=2 b=3", "line 1, column 5: 1025 Expected end of statement"},
        StatementCase{"2*t", "line 1, column 1: 1024 Expected statement"},
        StatementCase{"=3", "line 1, column 1: 1024 Expected statement"},
        StatementCase{"a=1: )", "line 1, column 6: 1024 Expected statement"},
        StatementCase{"a +", "line 1, column 4: 1002 Syntax error"},
        StatementCase{"a *2", "line 1, column 3: 1025 Expected end of statement"},
        StatementCase{"Let 5=3", "line 1, column 5: 1010 Expected identifier"},
        StatementCase{"Let a 3", "line 1, column 7: 1011 Expected '='"},
        StatementCase{"Set a 3", "line 1, column 7: 1011 Expected '='"},
        StatementCase{"Set a=3", "line 1, column 5: 424 Object required"},
        StatementCase{"a=MathLib", "line 1, column 1: 438 Object doesn't support this property or method"},
        StatementCase{"a(1)=2", "line 1, column 1: 13 Type mismatch"},
        StatementCase{"a(1)(2)=2", "line 1, column 5: 1025 Expected end of statement"},
        StatementCase{"sin=3", "line 1, column 1: 501 Illegal assignment"},
        StatementCase{"sin(1)=3", "line 1, column 1: 501 Illegal assignment"},
        StatementCase{"Call 5", "line 1, column 6: 1010 Expected identifier"},
        StatementCase{"Call", "line 1, column 5: 1010 Expected identifier"},
        StatementCase{"Call f 1", "line 1, column 8: 1025 Expected end of statement"},
        StatementCase{"f(1, 2)", "line 1, column 2: 1044 Cannot use parentheses when calling a Sub"},
        StatementCase{"f 1", "line 1, column 1: 13 Type mismatch"},
        StatementCase{"f", "line 1, column 1: 13 Type mismatch"},
        StatementCase{"MathLib", "line 1, column 1: 438 Object doesn't support this property or method"},
        StatementCase{"On Error Resume Next", "line 1, column 1: 1002 Syntax error"},
        StatementCase{"ReDim a(3)", "line 1, column 1: 1002 Syntax error"},
        StatementCase{"With a", "line 1, column 1: 1002 Syntax error"},
        StatementCase{"a=1: Option Explicit", "line 1, column 6: 1002 Syntax error"},
        StatementCase{"Option Base", "line 1, column 8: 1002 Syntax error"},
        StatementCase{"Option Explicit a", "line 1, column 17: 1025 Expected end of statement"},
        StatementCase{"Loop", "line 1, column 1: 1038 'loop' without 'do'"},
        StatementCase{"a=1: Next", "line 1, column 6: 1024 Expected statement"},
        StatementCase{"End If", "line 1, column 1: 1024 Expected statement"},
        StatementCase{"Else", "line 1, column 1: 1024 Expected statement"}));

INSTANTIATE_TEST_SUITE_P(
    Declarations, StatementFault,
    testing::Values(
        StatementCase{"Dim", "line 1, column 4: 1010 Expected identifier"},
        StatementCase{"Dim a,", "line 1, column 7: 1010 Expected identifier"},
        StatementCase{"Dim If", "line 1, column 5: 1010 Expected identifier"},
        StatementCase{"Dim a b", "line 1, column 7: 1025 Expected end of statement"},
        StatementCase{"Dim a()", "line 1, column 7: 1026 Expected integer constant"},
        StatementCase{"Dim a(n)", "line 1, column 7: 1026 Expected integer constant"},
        StatementCase{"Dim a(1.5)", "line 1, column 7: 1026 Expected integer constant"},
        StatementCase{"Dim a(-1)", "line 1, column 7: 1026 Expected integer constant"},
        StatementCase{"Dim a(3", "line 1, column 8: 1006 Expected ')'"},
        StatementCase{"Dim a: Dim A", "line 1, column 12: 1041 Name redefined"},
        StatementCase{"Dim f: Sub f: End Sub", "line 1, column 12: 1041 Name redefined"},
        StatementCase{"Const k", "line 1, column 8: 1011 Expected '='"},
        StatementCase{"Const k=x", "line 1, column 9: 1045 Expected literal constant"},
        StatementCase{"Const k=-True", "line 1, column 9: 1045 Expected literal constant"},
        StatementCase{"Const k=1+1", "line 1, column 10: 1025 Expected end of statement"},
        StatementCase{"Const k=1: k=2", "line 1, column 12: 501 Illegal assignment"},
        StatementCase{"Const k=1: For k=1 To 2: Next", "line 1, column 16: 501 Illegal assignment"},
        StatementCase{"Const k=1: k(1)=2", "line 1, column 12: 501 Illegal assignment"},
        StatementCase{"Sub s: Const k=1: k=2: End Sub: s", "line 1, column 19: 501 Illegal assignment"},
        StatementCase{"Sub s: End Sub: s=1", "line 1, column 17: 501 Illegal assignment"},
        StatementCase{"Dim a(2): a=1", "line 1, column 11: 13 Type mismatch"},
        StatementCase{"Dim a(2): b=a", "line 1, column 13: 13 Type mismatch"},
        StatementCase{"Dim a(2): a(3)=1", "line 1, column 11: 9 Subscript out of range"},
        StatementCase{"Dim a(2): b=a(-1)", "line 1, column 13: 9 Subscript out of range"},
        StatementCase{"Dim a(2): b=a(1,1)", "line 1, column 13: 9 Subscript out of range"},
        StatementCase{"Dim a(2): b=a()", "line 1, column 13: 9 Subscript out of range"},
        StatementCase{"Dim a(2): b=Abs(a)", "line 1, column 13: 13 Type mismatch"},
        StatementCase{"Dim a(2): a(1)=MathLib",
                      "line 1, column 11: 438 Object doesn't support this property or method"}));

INSTANTIATE_TEST_SUITE_P(
    Blocks, StatementFault,
    testing::Values(
        StatementCase{"If", "line 1, column 3: 1002 Syntax error"},
        StatementCase{"If a", "line 1, column 5: 1017 Expected 'Then'"},
        StatementCase{"If a Then\nb=1", "line 2, column 4: 1014 Expected 'End'"},
        StatementCase{"If a Then\nb=1\nEnd", "line 3, column 4: 1012 Expected 'If'"},
        StatementCase{"If a Then\nElse\nElseIf b Then\nEnd If", "line 3, column 1: 1014 Expected 'End'"},
        StatementCase{"If a Then b=1 c=2", "line 1, column 15: 1025 Expected end of statement"},
        StatementCase{"If a Then\nb=1\nElseIf b\nEnd If", "line 3, column 9: 1017 Expected 'Then'"},
        StatementCase{"If \"x\" Then a=1", "line 1, column 4: 13 Type mismatch"},
        StatementCase{"Select a", "line 1, column 8: 1021 Expected 'Case'"},
        StatementCase{"Select Case a\nb=1\nEnd Select", "line 2, column 1: 1021 Expected 'Case'"},
        StatementCase{"Select Case a\nCase 1\n", "line 3, column 1: 1014 Expected 'End'"},
        StatementCase{"Select Case a\nCase 1\nEnd If", "line 3, column 5: 1022 Expected 'Select'"},
        StatementCase{"Select Case a\nCase Else\nCase 1\nEnd Select",
                      "line 3, column 1: 1014 Expected 'End'"},
        StatementCase{"Select Case a b", "line 1, column 15: 1025 Expected end of statement"},
        StatementCase{"For", "line 1, column 4: 1010 Expected identifier"},
        StatementCase{"For i", "line 1, column 6: 1011 Expected '='"},
        StatementCase{"For i(1)=1 To 2: Next", "line 1, column 5: 1040 Invalid 'for' loop control variable"},
        StatementCase{"For i=1", "line 1, column 8: 1013 Expected 'To'"},
        StatementCase{"For i=1 To 2", "line 1, column 13: 1020 Expected 'Next'"},
        StatementCase{"For i=1 To 2: Loop", "line 1, column 15: 1020 Expected 'Next'"},
        StatementCase{"For i=1 To 2: Next i", "line 1, column 20: 1025 Expected end of statement"},
        StatementCase{"For i=1 To 2 a=1: Next", "line 1, column 14: 1025 Expected end of statement"},
        StatementCase{"For i=\"x\" To 2: Next", "line 1, column 7: 13 Type mismatch"},
        StatementCase{"For i=1 To Null: Next", "line 1, column 12: 94 Invalid use of Null"},
        StatementCase{"For sin=1 To 2: Next", "line 1, column 5: 501 Illegal assignment"},
        StatementCase{"Do", "line 1, column 3: 1019 Expected 'Loop'"},
        StatementCase{"Do a", "line 1, column 4: 1027 Expected 'While' or 'Until'"},
        StatementCase{"Do While a b", "line 1, column 12: 1025 Expected end of statement"},
        StatementCase{"Do: Wend", "line 1, column 5: 1019 Expected 'Loop'"},
        StatementCase{"Do While 1: Loop While 1", "line 1, column 18: 1025 Expected end of statement"},
        StatementCase{"While a", "line 1, column 8: 1018 Expected 'Wend'"},
        StatementCase{"While a: Loop", "line 1, column 10: 1018 Expected 'Wend'"},
        StatementCase{"While a b", "line 1, column 9: 1025 Expected end of statement"},
        StatementCase{"Exit For", "line 1, column 1: 1039 Invalid 'exit' statement"},
        StatementCase{"Exit Do", "line 1, column 1: 1039 Invalid 'exit' statement"},
        StatementCase{"While 1: Exit Do: Wend", "line 1, column 10: 1039 Invalid 'exit' statement"},
        StatementCase{"Exit Sub", "line 1, column 1: 1039 Invalid 'exit' statement"},
        StatementCase{"Sub s: Exit Function: End Sub", "line 1, column 8: 1039 Invalid 'exit' statement"},
        StatementCase{"Exit", "line 1, column 1: 1039 Invalid 'exit' statement"}));

INSTANTIATE_TEST_SUITE_P(
    Procedures, StatementFault,
    testing::Values(
        StatementCase{"Sub", "line 1, column 4: 1010 Expected identifier"},
        StatementCase{"Sub s(", "line 1, column 7: 1010 Expected identifier"},
        StatementCase{"Sub s(a", "line 1, column 8: 1006 Expected ')'"},
        StatementCase{"Sub s(a,)", "line 1, column 9: 1010 Expected identifier"},
        StatementCase{"Sub s(a, A): End Sub", "line 1, column 10: 1041 Name redefined"},
        StatementCase{"Sub s(a): Dim a: End Sub", "line 1, column 15: 1041 Name redefined"},
        StatementCase{"Function f: Dim f: End Function", "line 1, column 17: 1041 Name redefined"},
        StatementCase{"Sub s: End Sub: Function S: End Function", "line 1, column 26: 1041 Name redefined"},
        StatementCase{"Sub s\na=1", "line 2, column 4: 1014 Expected 'End'"},
        StatementCase{"Sub s\nEnd Function", "line 2, column 5: 1016 Expected 'Sub'"},
        StatementCase{"Function f\nEnd Sub", "line 2, column 5: 1015 Expected 'Function'"},
        StatementCase{"Sub s: Sub q: End Sub: End Sub", "line 1, column 8: 1002 Syntax error"},
        StatementCase{"If 1 Then Sub s: End Sub", "line 1, column 11: 1002 Syntax error"},
        StatementCase{"Sub s: Public a: End Sub", "line 1, column 8: 1002 Syntax error"},
        StatementCase{"Sub s: End Sub: a=s", "line 1, column 19: 13 Type mismatch"},
        StatementCase{"Sub s: End Sub: a=s()", "line 1, column 19: 13 Type mismatch"},
        StatementCase{"Sub s(a): End Sub: s",
                      "line 1, column 20: 450 Wrong number of arguments or invalid property assignment"},
        StatementCase{"Function f: End Function: a=f(1)",
                      "line 1, column 29: 450 Wrong number of arguments or invalid property assignment"},
        StatementCase{"Sub s(ByVal a): End Sub: Dim v(2): s v", "line 1, column 36: 13 Type mismatch"},
        StatementCase{"Sub s(a): a=1: End Sub: Dim v(2): s v", "line 1, column 11: 13 Type mismatch"}));

}  // namespace
