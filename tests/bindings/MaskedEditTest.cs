// The control of the C# binding, its window made by the Windows Forms of this machine, over a library that remembers what it is told
// (remembering_library.c). Exits with 1 where a check fails.
using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using System.Text;
using System.Windows.Forms;
using ZtEdit;

internal class MaskedEditTest
{
    private const int Command = 0x2000 + 0x0111;  // as a form reflects WM_COMMAND and WM_NOTIFY to the control
    private const int Notify = 0x2000 + 0x004E;
    private static int failures;

    [DllImport(Native.EditLibrary)]
    private static extern void TakeTold(StringBuilder text, int size);
    [DllImport(Native.EditLibrary)]
    private static extern int HeapsAlive();
    [DllImport(Native.EditLibrary)]
    private static extern int BlocksAlive();
    [DllImport(Native.EditLibrary)]
    private static extern void SetHasValue(int on);
    [DllImport(Native.EditLibrary)]
    private static extern void SetRefuses(int on);

    private class Probe : MaskedEdit
    {
        public Message Send(int message, IntPtr wParam, IntPtr lParam)
        {
            Message sent = Message.Create(Handle, message, wParam, lParam);
            WndProc(ref sent);
            return sent;
        }

        public Message SendRecord(object record)
        {
            IntPtr memory = Marshal.AllocHGlobal(Marshal.SizeOf(record));
            Marshal.StructureToPtr(record, memory, false);
            Message sent = Send(Notify, IntPtr.Zero, memory);
            Marshal.FreeHGlobal(memory);
            return sent;
        }

        public bool TakesKey(Keys key)
        {
            return IsInputKey(key);
        }
    }

    private static void Expect(object expected, object actual, string what)
    {
        if (Equals(expected, actual))
            return;
        Console.Error.WriteLine("FAILED: " + what + " is " + (actual ?? "null") + ", not " + (expected ?? "null"));
        ++failures;
    }

    private static string Told()
    {
        StringBuilder text = new StringBuilder(4096);
        TakeTold(text, text.Capacity);
        return text.ToString();
    }

    private static Probe MakeDate()
    {
        Probe made = new Probe { DataType = DataType.Date, Mask = "MM/DD/YYYY", Modern = true, SkipsWhenFull = true };
        made.Value = new DateTime(2026, 11, 21);
        return made;
    }

    private static void ConfiguresItsWindow()
    {
        using (Probe date = MakeDate())
        {
            Expect(ValueState.NoControl, date.State, "the state before there is a window");
            Expect(new DateTime(2026, 11, 21), date.Value, "the value before there is a window");
            Expect("", Told(), "what is told before there is a window");
            date.CreateControl();
            Expect(IntPtr.Zero == date.Handle, false, "no window");
            Expect("mask MM/DD/YYYY 3;data 2026-11-21 17;spin - 1;codes - 0;", Told(), "the configuration");
            Expect(1, HeapsAlive(), "heaps of a control");
            Expect(ValueState.Complete, date.State, "the state");
            Expect(new DateTime(2026, 11, 21), date.DateValue, "the date");
            Expect(null, date.DecimalValue, "the number of a date");
            Expect(0, BlocksAlive(), "blocks left behind");
        }
        Expect(0, HeapsAlive(), "heaps left behind");
    }

    private static void TakesValues()
    {
        using (Probe number = new Probe { DataType = DataType.Decimal })
        {
            IntPtr window = number.Handle;
            Expect(true, window != IntPtr.Zero, "a window");
            number.Value = 12.50m;
            Expect("12.50", number.CanonicalText, "the canonical text");
            Expect(12.50m, number.DecimalValue, "the decimal");
            Expect(12.5, number.NumberValue, "the number");
            Expect(null, number.DateValue, "the date of a number");
            Expect(Reason.DoesNotFit, number.TrySetValue("x"), "the reason");
            Expect(12.50m, number.Value, "the value after a refusal");
            try
            {
                number.Value = "x";
                Expect("an exception", "none", "a refused value");
            }
            catch (ArgumentException)
            {
            }
            number.Value = null;
            Expect(null, number.Value, "the empty value");
            number.Value = 7m;
            SetHasValue(0);
            Expect(null, number.Value, "an incomplete value");
            SetHasValue(1);
            Told();
            number.Text = "8";
            Expect("set text 8 1;", Told(), "a text");
            Expect(0, BlocksAlive(), "blocks left behind");
        }
    }

    private static void HasNoValueOfAnotherType()
    {
        using (Probe text = new Probe { Value = "1995-07-04" })
        {
            Expect(null, text.DateValue, "the date of a string");
            Expect("1995-07-04", text.Value, "the string");
            text.Value = "14:07";
            Expect(null, text.TimeValue, "the time of a string");
            text.Value = "5";
            Expect(null, text.NumberValue, "the number of a string");
            Expect(null, text.DecimalValue, "the decimal of a string");
        }
    }

    private static void ChangesWhileItIsThere()
    {
        using (Probe date = MakeDate())
        {
            date.CreateControl();
            IntPtr window = date.Handle;
            Expect(true, window != IntPtr.Zero, "a window");
            Told();
            date.Modern = false;
            date.SkipsWhenFull = false;
            Expect("modern  0;autoskip  0;", Told(), "switches");
            Expect(false, date.SetMask("x", DataType.Time), "a mask that does not fit");
            Expect("set mask x 4;", Told(), "the mask");
            date.SetMask("HH:MM", DataType.Time);
            date.Value = new TimeSpan(14, 7, 0);
            Told();
            date.SetSpin(5, "08:00~18:00");
            Expect("mask HH:MM 4;data 14:07:00 2;spin 08:00~18:00 5;codes - 0;", Told(), "the window made anew");
            Expect(new TimeSpan(14, 7, 0), date.TimeValue, "the value of the window made anew");
            Expect(1, HeapsAlive(), "heaps after the window was made anew");
            date.SetChoices("One\t1");
            Expect("mask HH:MM 4;data 14:07:00 14;spin 08:00~18:00 5;codes One\t1 0;", Told(), "choices");
        }
    }

    private static void RaisesItsEvents()
    {
        using (Probe date = MakeDate())
        {
            date.CreateControl();
            List<string> heard = new List<string>();
            bool handled = false;
            date.Rejected += (sender, e) =>
            {
                heard.Add("rejected " + e.Reason + " at " + e.Position + " by " + e.Character);
                e.Handled = handled;
            };
            date.StateChanged += (sender, e) => heard.Add("state " + e.Was + " to " + e.Is);
            date.AutoSkip += (sender, e) => heard.Add("skip");
            date.ValueChanged += (sender, e) => heard.Add("value");
            date.TextChanged += (sender, e) => heard.Add("text");
            NMHDR header = new NMHDR { hwndFrom = date.Handle, code = Native.ZTN_REJECTED };
            ZTNotifyRejected refused = new ZTNotifyRejected { hdr = header, reason = Native.ZTR_FULL, position = 3, character = 'y' };
            Expect(IntPtr.Zero, date.SendRecord(refused).Result, "the answer that lets it beep");
            handled = true;
            Expect(new IntPtr(1), date.SendRecord(refused).Result, "the answer in the beep's place");
            header.code = Native.ZTN_STATECHANGED;
            date.SendRecord(new ZTNotifyState { hdr = header, was = Native.ZTS_EMPTY, @is = Native.ZTS_INVALID });
            date.Send(Command, new IntPtr(Native.ZTN_AUTOSKIP << 16 | 101), date.Handle);
            date.Send(Command, new IntPtr(0x0300 << 16 | 101), date.Handle);
            date.Send(Command, new IntPtr(0x0200 << 16 | 101), date.Handle);
            string expected = "rejected Full at 3 by y, rejected Full at 3 by y, state Empty to Invalid, skip, text, value";
            Expect(expected, string.Join(", ", heard), "what is heard");
            Expect(true, date.TakesKey(Keys.Left) && date.TakesKey(Keys.Up), "an arrow as the control's own key");
            Expect(false, date.TakesKey(Keys.Tab), "Tab as the control's own key");
        }
    }

    private static void SaysWhenItCannotBeConfigured()
    {
        SetRefuses(1);
        using (Probe date = MakeDate())
        {
            date.CreateControl();
            Expect(ValueState.NoControl, date.State, "the state of a plain edit");
            Expect(Problem.NotSubclassed, date.LastProblem, "the problem");
            Expect(null, date.Value, "the value of a plain edit");
        }
        SetRefuses(0);
    }

    private static int Main()
    {
        ConfiguresItsWindow();
        TakesValues();
        HasNoValueOfAnotherType();
        ChangesWhileItIsThere();
        RaisesItsEvents();
        SaysWhenItCannotBeConfigured();
        return failures == 0 ? 0 : 1;
    }
}
