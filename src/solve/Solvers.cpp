// The quadratic and the two-linear-equations solvers. Neither computes a root itself: each writes
// the roots as expressions from the coefficients as typed and lets RUN evaluate them, relying on
// Push being synchronous so that quad and twodim can be re-armed between two runs.

#include "framework/Text.h"
#include "window/Window1.h"

using namespace fw;

namespace {
const char* const kQuadraticLine = "Solutions(x1,x2):";
const char* const kLinearLine = "Solutions(X,Y):";

// Only these two texts count as zero: "0.0" and "00" are coefficients like any other.
bool IsZero(const std::string& text) { return text.empty() || StrEq(text, "0"); }

void RunLogged(Window1& w, const std::string& label, const std::string& expression) {
    w.LogLine(label + expression);
    w.EditField1.SetText(expression);
    w.PushButton1.Push();
}

std::string OrZero(const TextField& field) { return field.Text().empty() ? "0" : field.Text(); }
}  // namespace

void Window1::WireSolvers() {
    PushButton41.Action = [this] { PushButton41_Action(); };
    EditA.TextChange = [this] { EditA_TextChange(); };
    EditB.TextChange = [this] { EditB_TextChange(); };
    EditC.TextChange = [this] { EditC_TextChange(); };
    PushButton45.Action = [this] { PushButton45_Action(); };
    A1.KeyDown = [this](const std::string& key) { return A1_KeyDown(key); };
    B1.KeyDown = [this](const std::string& key) { return B1_KeyDown(key); };
    C1.KeyDown = [this](const std::string& key) { return C1_KeyDown(key); };
    D2.KeyDown = [this](const std::string& key) { return D2_KeyDown(key); };
    E2.KeyDown = [this](const std::string& key) { return E2_KeyDown(key); };
    F2.KeyDown = [this](const std::string& key) { return F2_KeyDown(key); };
}

void Window1::PushButton41_Action() {
    const std::string a = EditA.Text();
    const std::string b = EditB.Text();
    const std::string c = EditC.Text();
    quad = 1;
    if (!IsZero(a) && !IsZero(b) && !IsZero(c)) {
        const std::string root = "sqrt((" + b + ")^2-4*" + a + "*" + c + "))/(2*" + a + ")";
        RunLogged(*this, "Entered (QE:1): ", "((-1)*" + b + "+" + root);
        quad = 1;
        RunLogged(*this, "Entered (QE:1): ", "((-1)*" + b + "-" + root);
        return;
    }
    // Three independent blocks, not alternatives: several may fire on one input. Only the second
    // run of a pair re-arms quad, so a block's first run may find it already spent.
    if (IsZero(a)) {
        if (IsZero(b)) EditField9.SetText(EditField9.Text() + "No Solution");
        else RunLogged(*this, "Entered (QE): ", "-1*" + c + "/" + b);
    }
    if (IsZero(b)) {
        const double va = Val(a);
        const double vc = Val(c);
        if ((va > 0 && vc > 0) || (va < 0 && vc < 0)) {
            EditField9.SetText(EditField9.Text() + "No Solution");
        } else {
            const std::string root = "sqrt((-1)*" + c + "/" + a + ")";
            RunLogged(*this, "Entered (QE:1): ", root);
            quad = 1;
            RunLogged(*this, "Entered (QE:2): ", "(-1)*" + root);
        }
    }
    if (IsZero(c)) {
        RunLogged(*this, "Entered (QE:1): ", "0");
        if (!IsZero(a) && !IsZero(b)) {
            quad = 1;
            RunLogged(*this, "Entered (QE:1): ", "(-1)*" + b + "/" + a);
        }
    }
}

void Window1::EditA_TextChange() { EditField9.SetText(kQuadraticLine); }
void Window1::EditB_TextChange() { EditField9.SetText(kQuadraticLine); }
void Window1::EditC_TextChange() { EditField9.SetText(kQuadraticLine); }

void Window1::PushButton45_Action() {
    const std::string a1 = OrZero(A1), b1 = OrZero(B1), c1 = OrZero(C1);
    const std::string d2 = OrZero(D2), e2 = OrZero(E2), f2 = OrZero(F2);
    const std::string determinant = a1 + "*" + e2 + "-" + b1 + "*" + d2;
    LogLine("**Begin 2 linear equation calculations");
    // The determinant goes through the = key, so it gets the keypad's rewriting; X and Y do not.
    BevelButton1.SetCaption("Calculate");
    EditField4.SetText(determinant);
    PushButton40.Push();
    // A failed or refused run leaves the previous answer here, and that answer decides.
    const double value = Val(EditField5.Text());
    BevelButton1.SetCaption("Solve");
    if (value == 0.0) {
        LogLine("No Unique Solution");
        TextField2.SetText(TextField2.Text() + " No Solution");
    } else {
        const std::string x = "(" + e2 + "*" + c1 + "-" + f2 + "*" + b1 + ")/(" + determinant + ")";
        twodim = 1;
        RunLogged(*this, "Entered (2Dx): ", x);
        // Y from the first equation, so it divides by B1 even when B1 is zero.
        twodim = 1;
        RunLogged(*this, "Entered (2Dy): ", "(" + c1 + "-" + a1 + "*" + x + ")/" + b1);
    }
    LogLine("****End 2 linear equation calculations");
}

bool Window1::A1_KeyDown(const std::string&) { TextField2.SetText(kLinearLine); return false; }
bool Window1::B1_KeyDown(const std::string&) { TextField2.SetText(kLinearLine); return false; }
bool Window1::C1_KeyDown(const std::string&) { TextField2.SetText(kLinearLine); return false; }
bool Window1::D2_KeyDown(const std::string&) { TextField2.SetText(kLinearLine); return false; }
bool Window1::E2_KeyDown(const std::string&) { TextField2.SetText(kLinearLine); return false; }
bool Window1::F2_KeyDown(const std::string&) { TextField2.SetText(kLinearLine); return false; }
