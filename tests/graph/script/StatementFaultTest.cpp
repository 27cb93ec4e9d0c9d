#include <gtest/gtest.h>

#include "tests/graph/script/ScriptSupport.h"

namespace {

struct Fault {
    const char* code;
    const char* error;
};

void PrintTo(const Fault& row, std::ostream* out) { *out << row.code; }

class StatementFault : public testing::TestWithParam<Fault> {};

TEST_P(StatementFault, IsReportedWhereItIs) { EXPECT_EQ(codeError(GetParam().code), GetParam().error); }

INSTANTIATE_TEST_SUITE_P(
    Simple, StatementFault,
    testing::Values(Fault{"a=", "line 1, column 3: 1002 Syntax error"},
                    Fault{"a=2:b=(1", "line 1, column 9: 1006 Expected ')'"},
                    Fault{"a=2 b=3", "line 1, column 5: 1025 Expected end of statement"},
                    Fault{"2*t", "line 1, column 1: 1024 Expected statement"},
                    Fault{"=3", "line 1, column 1: 1024 Expected statement"},
                    Fault{"a=1: )", "line 1, column 6: 1024 Expected statement"},
                    Fault{"a +", "line 1, column 4: 1002 Syntax error"},
                    Fault{"a *2", "line 1, column 3: 1025 Expected end of statement"},
                    Fault{"Let 5=3", "line 1, column 5: 1010 Expected identifier"},
                    Fault{"Let a 3", "line 1, column 7: 1011 Expected '='"},
                    Fault{"Set a 3", "line 1, column 7: 1011 Expected '='"},
                    Fault{"Set a=3", "line 1, column 5: 424 Object required"},
                    Fault{"a=MathLib",
                          "line 1, column 1: 438 Object doesn't support this property or method"},
                    Fault{"a(1)=2", "line 1, column 1: 13 Type mismatch"},
                    Fault{"a(1)(2)=2", "line 1, column 5: 1025 Expected end of statement"},
                    Fault{"sin=3", "line 1, column 1: 501 Illegal assignment"},
                    Fault{"sin(1)=3", "line 1, column 1: 501 Illegal assignment"},
                    Fault{"Call 5", "line 1, column 6: 1010 Expected identifier"},
                    Fault{"Call", "line 1, column 5: 1010 Expected identifier"},
                    Fault{"Call f 1", "line 1, column 8: 1025 Expected end of statement"},
                    Fault{"f(1, 2)", "line 1, column 2: 1044 Cannot use parentheses when calling a Sub"},
                    Fault{"f 1", "line 1, column 1: 13 Type mismatch"},
                    Fault{"f", "line 1, column 1: 13 Type mismatch"},
                    Fault{"MathLib", "line 1, column 1: 438 Object doesn't support this property or method"},
                    Fault{"On Error Resume Next", "line 1, column 1: 1002 Syntax error"},
                    Fault{"ReDim a(3)", "line 1, column 1: 1002 Syntax error"},
                    Fault{"With a", "line 1, column 1: 1002 Syntax error"},
                    Fault{"a=1: Option Explicit", "line 1, column 6: 1002 Syntax error"},
                    Fault{"Option Base", "line 1, column 8: 1002 Syntax error"},
                    Fault{"Option Explicit a", "line 1, column 17: 1025 Expected end of statement"},
                    Fault{"Loop", "line 1, column 1: 1038 'loop' without 'do'"},
                    Fault{"a=1: Next", "line 1, column 6: 1024 Expected statement"},
                    Fault{"End If", "line 1, column 1: 1024 Expected statement"},
                    Fault{"Else", "line 1, column 1: 1024 Expected statement"}));

INSTANTIATE_TEST_SUITE_P(
    Declarations, StatementFault,
    testing::Values(Fault{"Dim", "line 1, column 4: 1010 Expected identifier"},
                    Fault{"Dim a,", "line 1, column 7: 1010 Expected identifier"},
                    Fault{"Dim If", "line 1, column 5: 1010 Expected identifier"},
                    Fault{"Dim a b", "line 1, column 7: 1025 Expected end of statement"},
                    Fault{"Dim a()", "line 1, column 7: 1026 Expected integer constant"},
                    Fault{"Dim a(n)", "line 1, column 7: 1026 Expected integer constant"},
                    Fault{"Dim a(1.5)", "line 1, column 7: 1026 Expected integer constant"},
                    Fault{"Dim a(-1)", "line 1, column 7: 1026 Expected integer constant"},
                    Fault{"Dim a(3", "line 1, column 8: 1006 Expected ')'"},
                    Fault{"Dim a: Dim A", "line 1, column 12: 1041 Name redefined"},
                    Fault{"Dim f: Sub f: End Sub", "line 1, column 12: 1041 Name redefined"},
                    Fault{"Const k", "line 1, column 8: 1011 Expected '='"},
                    Fault{"Const k=x", "line 1, column 9: 1045 Expected literal constant"},
                    Fault{"Const k=-True", "line 1, column 9: 1045 Expected literal constant"},
                    Fault{"Const k=1+1", "line 1, column 10: 1025 Expected end of statement"},
                    Fault{"Const k=1: k=2", "line 1, column 12: 501 Illegal assignment"},
                    Fault{"Const k=1: For k=1 To 2: Next", "line 1, column 16: 501 Illegal assignment"},
                    Fault{"Const k=1: k(1)=2", "line 1, column 12: 501 Illegal assignment"},
                    Fault{"Sub s: Const k=1: k=2: End Sub: s", "line 1, column 19: 501 Illegal assignment"},
                    Fault{"Sub s: End Sub: s=1", "line 1, column 17: 501 Illegal assignment"},
                    Fault{"Dim a(2): a=1", "line 1, column 11: 13 Type mismatch"},
                    Fault{"Dim a(2): b=a", "line 1, column 13: 13 Type mismatch"},
                    Fault{"Dim a(2): a(3)=1", "line 1, column 11: 9 Subscript out of range"},
                    Fault{"Dim a(2): b=a(-1)", "line 1, column 13: 9 Subscript out of range"},
                    Fault{"Dim a(2): b=a(1,1)", "line 1, column 13: 9 Subscript out of range"},
                    Fault{"Dim a(2): b=a()", "line 1, column 13: 9 Subscript out of range"},
                    Fault{"Dim a(2): b=Abs(a)", "line 1, column 13: 13 Type mismatch"},
                    Fault{"Dim a(2): a(1)=MathLib",
                          "line 1, column 11: 438 Object doesn't support this property or method"}));

INSTANTIATE_TEST_SUITE_P(
    Blocks, StatementFault,
    testing::Values(
        Fault{"If", "line 1, column 3: 1002 Syntax error"},
        Fault{"If a", "line 1, column 5: 1017 Expected 'Then'"},
        Fault{"If a Then\nb=1", "line 2, column 4: 1014 Expected 'End'"},
        Fault{"If a Then\nb=1\nEnd", "line 3, column 4: 1012 Expected 'If'"},
        Fault{"If a Then\nElse\nElseIf b Then\nEnd If", "line 3, column 1: 1014 Expected 'End'"},
        Fault{"If a Then b=1 c=2", "line 1, column 15: 1025 Expected end of statement"},
        Fault{"If a Then\nb=1\nElseIf b\nEnd If", "line 3, column 9: 1017 Expected 'Then'"},
        Fault{"If \"x\" Then a=1", "line 1, column 4: 13 Type mismatch"},
        Fault{"Select a", "line 1, column 8: 1021 Expected 'Case'"},
        Fault{"Select Case a\nb=1\nEnd Select", "line 2, column 1: 1021 Expected 'Case'"},
        Fault{"Select Case a\nCase 1\n", "line 3, column 1: 1014 Expected 'End'"},
        Fault{"Select Case a\nCase 1\nEnd If", "line 3, column 5: 1022 Expected 'Select'"},
        Fault{"Select Case a\nCase Else\nCase 1\nEnd Select", "line 3, column 1: 1014 Expected 'End'"},
        Fault{"Select Case a b", "line 1, column 15: 1025 Expected end of statement"},
        Fault{"For", "line 1, column 4: 1010 Expected identifier"},
        Fault{"For i", "line 1, column 6: 1011 Expected '='"},
        Fault{"For i(1)=1 To 2: Next", "line 1, column 5: 1040 Invalid 'for' loop control variable"},
        Fault{"For i=1", "line 1, column 8: 1013 Expected 'To'"},
        Fault{"For i=1 To 2", "line 1, column 13: 1020 Expected 'Next'"},
        Fault{"For i=1 To 2: Loop", "line 1, column 15: 1020 Expected 'Next'"},
        Fault{"For i=1 To 2: Next i", "line 1, column 20: 1025 Expected end of statement"},
        Fault{"For i=1 To 2 a=1: Next", "line 1, column 14: 1025 Expected end of statement"},
        Fault{"For i=\"x\" To 2: Next", "line 1, column 7: 13 Type mismatch"},
        Fault{"For i=1 To Null: Next", "line 1, column 12: 94 Invalid use of Null"},
        Fault{"For sin=1 To 2: Next", "line 1, column 5: 501 Illegal assignment"},
        Fault{"Do", "line 1, column 3: 1019 Expected 'Loop'"},
        Fault{"Do a", "line 1, column 4: 1027 Expected 'While' or 'Until'"},
        Fault{"Do While a b", "line 1, column 12: 1025 Expected end of statement"},
        Fault{"Do: Wend", "line 1, column 5: 1019 Expected 'Loop'"},
        Fault{"Do While 1: Loop While 1", "line 1, column 18: 1025 Expected end of statement"},
        Fault{"While a", "line 1, column 8: 1018 Expected 'Wend'"},
        Fault{"While a: Loop", "line 1, column 10: 1018 Expected 'Wend'"},
        Fault{"While a b", "line 1, column 9: 1025 Expected end of statement"},
        Fault{"Exit For", "line 1, column 1: 1039 Invalid 'exit' statement"},
        Fault{"Exit Do", "line 1, column 1: 1039 Invalid 'exit' statement"},
        Fault{"While 1: Exit Do: Wend", "line 1, column 10: 1039 Invalid 'exit' statement"},
        Fault{"Exit Sub", "line 1, column 1: 1039 Invalid 'exit' statement"},
        Fault{"Sub s: Exit Function: End Sub", "line 1, column 8: 1039 Invalid 'exit' statement"},
        Fault{"Exit", "line 1, column 1: 1039 Invalid 'exit' statement"}));

INSTANTIATE_TEST_SUITE_P(
    Procedures, StatementFault,
    testing::Values(Fault{"Sub", "line 1, column 4: 1010 Expected identifier"},
                    Fault{"Sub s(", "line 1, column 7: 1010 Expected identifier"},
                    Fault{"Sub s(a", "line 1, column 8: 1006 Expected ')'"},
                    Fault{"Sub s(a,)", "line 1, column 9: 1010 Expected identifier"},
                    Fault{"Sub s(a, A): End Sub", "line 1, column 10: 1041 Name redefined"},
                    Fault{"Sub s(a): Dim a: End Sub", "line 1, column 15: 1041 Name redefined"},
                    Fault{"Function f: Dim f: End Function", "line 1, column 17: 1041 Name redefined"},
                    Fault{"Sub s: End Sub: Function S: End Function",
                          "line 1, column 26: 1041 Name redefined"},
                    Fault{"Sub s\na=1", "line 2, column 4: 1014 Expected 'End'"},
                    Fault{"Sub s\nEnd Function", "line 2, column 5: 1016 Expected 'Sub'"},
                    Fault{"Function f\nEnd Sub", "line 2, column 5: 1015 Expected 'Function'"},
                    Fault{"Sub s: Sub q: End Sub: End Sub", "line 1, column 8: 1002 Syntax error"},
                    Fault{"If 1 Then Sub s: End Sub", "line 1, column 11: 1002 Syntax error"},
                    Fault{"Sub s: Public a: End Sub", "line 1, column 8: 1002 Syntax error"},
                    Fault{"Sub s: End Sub: a=s", "line 1, column 19: 13 Type mismatch"},
                    Fault{"Sub s: End Sub: a=s()", "line 1, column 19: 13 Type mismatch"},
                    Fault{"Sub s(a): End Sub: s",
                          "line 1, column 20: 450 Wrong number of arguments or invalid property assignment"},
                    Fault{"Function f: End Function: a=f(1)",
                          "line 1, column 29: 450 Wrong number of arguments or invalid property assignment"},
                    Fault{"Sub s(ByVal a): End Sub: Dim v(2): s v", "line 1, column 36: 13 Type mismatch"},
                    Fault{"Sub s(a): a=1: End Sub: Dim v(2): s v", "line 1, column 11: 13 Type mismatch"}));

}  // namespace
