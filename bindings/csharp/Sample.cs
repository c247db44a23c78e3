// Sample.cs - a form of two masked edits: a due date and an amount. OK, or the Enter key, puts what was entered into the title.
//
//     csc -target:winexe Sample.cs ZtEdit.cs          (or mcs, with -r:System.Windows.Forms -r:System.Drawing)
using System;
using System.Drawing;
using System.Windows.Forms;
using ZtEdit;

internal class InvoiceForm : Form
{
    private readonly MaskedEdit due = new MaskedEdit
    {
        DataType = DataType.Date, Mask = "MM/DD/YYYY", Modern = true, SkipsWhenFull = true, Location = new Point(20, 20)
    };
    private readonly MaskedEdit amount = new MaskedEdit
    {
        DataType = DataType.Decimal, Mask = "#,##0.00", Modern = true, Location = new Point(20, 54)
    };
    private readonly Button ok = new Button { Text = "OK", Location = new Point(20, 88) };
    private readonly Label hint = new Label { AutoSize = true, Location = new Point(20, 124) };

    private InvoiceForm()
    {
        Text = "Invoice";
        amount.SetSpin(1, "0~99999");
        Controls.AddRange(new Control[] { due, amount, ok, hint });
        AcceptButton = ok;
        due.AutoSkip += (sender, e) => SelectNextControl(due, true, true, true, true);
        due.Rejected += ShowRefusal;
        amount.Rejected += ShowRefusal;
        ok.Click += (sender, e) => ShowEntered();
    }

    // A refused key is told in words instead of by a beep.
    private void ShowRefusal(object sender, RejectedEventArgs e)
    {
        hint.Text = e.Reason == Reason.WrongKind ? "This does not belong here." : "This cannot be entered.";
        e.Handled = true;
    }

    private void ShowEntered()
    {
        DateTime? day = due.DateValue;
        if (day == null)
            due.Focus();
        else
            Text = "Due " + Canonical.Of(day.Value, DataType.Date) + ", amount " + amount.CanonicalText;
    }

    [STAThread]
    private static void Main()
    {
        Application.Run(new InvoiceForm());
    }
}
