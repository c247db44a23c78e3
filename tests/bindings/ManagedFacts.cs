// What the C# binding is once compiled, told by reflection and by the marshaller: its functions, records and constants, a line each, for
// check_declarations.py. Before that its own tests: the canonical texts, and what the control offers. Exits with 1 where one fails.
using System;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;
using System.Runtime.InteropServices;
using System.Windows.Forms;
using ZtEdit;

internal static class ManagedFacts
{
    private static int failures;

    private static void Expect(object expected, object actual, string what)
    {
        if (Equals(expected, actual))
            return;
        Console.Error.WriteLine("FAILED: " + what + " is " + (actual ?? "null") + ", not " + (expected ?? "null"));
        ++failures;
    }

    private static void CheckTexts()
    {
        DateTime moment = new DateTime(2026, 2, 3, 4, 5, 6).AddTicks(7 * 10);
        Expect("2026-02-03", Canonical.Of(moment, DataType.Date), "a date");
        Expect("2026-02-03 04:05:06:000007", Canonical.Of(moment, DataType.DateTime), "a date and a time");
        Expect(moment, Canonical.ToDateTime("2026-02-03 04:05:06:000007"), "a date and a time read");
        Expect(new DateTime(2026, 2, 3), Canonical.ToDateTime("2026-02-03"), "a date read");
        Expect(new DateTime(2026, 2, 3, 14, 7, 0), Canonical.ToDateTime("2026-02-03 14:07"), "a date and a short time read");
        Expect(null, Canonical.ToDateTime(""), "no date read");
        Expect(null, Canonical.ToDateTime(null), "null as a date");
        Expect(null, Canonical.ToDateTime("2026-02-30"), "a date that does not exist");
        Expect("00:00:00", Canonical.Of(TimeSpan.Zero), "midnight");
        Expect("14:07:09:250000", Canonical.Of(new TimeSpan(0, 14, 7, 9, 250)), "a time");
        Expect(new TimeSpan(0, 14, 7, 9, 250), Canonical.ToTimeSpan("14:07:09:250000"), "a time read");
        Expect(null, Canonical.ToTimeSpan(null), "null as a time");
        Expect("-1234.5", Canonical.Of(-1234.5), "a number");
        Expect("0.30000000000000004", Canonical.Of(0.1 + 0.2), "a number of all its digits");
        Expect("0.00000015", Canonical.Of(1.5e-7), "a small number");
        Expect("1500000000000000000000", Canonical.Of(1.5e21), "a large number");
        Expect("1" + new string('0', 300), Canonical.Of(1e300), "a number beyond decimals");
        Expect(-1234.5, Canonical.ToDouble("-1234.50"), "a number read");
        Expect("1234567.8901", Canonical.Of(1234567.8901m), "a decimal");
        Expect(1234567.8901m, Canonical.ToDecimal("1234567.8901"), "a decimal read");
        Expect(null, Canonical.ToDecimal(""), "no decimal read");
        Expect("", Canonical.OfObject(null, DataType.Date), "no value");
        Expect("5", Canonical.OfObject(5, DataType.Number), "a whole number");
        Expect("2026-02-03", Canonical.OfObject(moment, DataType.Date), "a date as an object");
        Expect(1234.5, Canonical.ToObject("1234.5", DataType.Number), "the object of a number");
        Expect(1234.5m, Canonical.ToObject("1234.5", DataType.Decimal), "the object of a decimal");
        Expect("ab", Canonical.ToObject("ab", DataType.String), "the object of a text");
        Expect(null, Canonical.ToObject(null, DataType.Date), "the object of no date");
    }

    private static void CheckControl()
    {
        Type control = typeof(MaskedEdit);
        Expect(true, typeof(Control).IsAssignableFrom(control), "MaskedEdit a control");
        var properties = new Dictionary<string, Type>
        {
            { "Value", typeof(object) }, { "Text", typeof(string) }, { "State", typeof(ValueState) }, { "Mask", typeof(string) },
            { "DataType", typeof(DataType) }, { "DateValue", typeof(DateTime?) }, { "TimeValue", typeof(TimeSpan?) },
            { "NumberValue", typeof(double?) }, { "DecimalValue", typeof(decimal?) }, { "Modern", typeof(bool) }
        };
        foreach (KeyValuePair<string, Type> row in properties)
        {
            PropertyInfo property = control.GetProperty(row.Key);
            Expect(row.Value, property == null ? null : property.PropertyType, "the type of " + row.Key);
        }
        foreach (string name in new[] { "Rejected", "StateChanged", "AutoSkip", "ValueChanged" })
            Expect(true, control.GetEvent(name) != null, "the event " + name);
    }

    private static bool IsRecord(Type type)
    {
        return type.IsValueType && !type.IsPrimitive && !type.IsEnum && type != typeof(IntPtr) && type != typeof(UIntPtr);
    }

    private static string KindOf(Type type)
    {
        var kinds = new Dictionary<Type, string>
        {
            { typeof(void), "void" }, { typeof(sbyte), "i8" }, { typeof(byte), "u8" }, { typeof(short), "i16" },
            { typeof(ushort), "u16" }, { typeof(int), "i32" }, { typeof(uint), "u32" }, { typeof(long), "i64" },
            { typeof(ulong), "u64" }, { typeof(double), "f64" }
        };
        string kind;
        if (kinds.TryGetValue(type, out kind))
            return kind;
        return IsRecord(type) ? type.Name : "ptr";
    }

    private static void TellFunctions()
    {
        foreach (MethodInfo method in typeof(Native).GetMethods(BindingFlags.Public | BindingFlags.Static))
        {
            DllImportAttribute import = (DllImportAttribute)Attribute.GetCustomAttribute(method, typeof(DllImportAttribute));
            Expect(true, import.ExactSpelling && import.CharSet == CharSet.Ansi, "exact spelling and narrow texts of " + method.Name);
            Expect(true, import.CallingConvention == CallingConvention.Winapi, "the calling convention of " + method.Name);
            IEnumerable<string> parameters = method.GetParameters().Select(each => KindOf(each.ParameterType));
            Console.WriteLine("function " + import.EntryPoint + " " + import.Value + " " + KindOf(method.ReturnType) + " " +
                              string.Join(" ", parameters));
        }
    }

    private static void TellRecords()
    {
        foreach (Type record in typeof(Native).Assembly.GetTypes().Where(IsRecord))
        {
            Console.WriteLine("record " + record.Name + " " + Marshal.SizeOf(record));
            foreach (FieldInfo field in record.GetFields(BindingFlags.Instance | BindingFlags.Public))
                Console.WriteLine("field " + record.Name + " " + field.Name + " " + Marshal.OffsetOf(record, field.Name) + " " +
                                  KindOf(field.FieldType));
        }
    }

    private static void TellConstants()
    {
        foreach (FieldInfo constant in typeof(Native).GetFields(BindingFlags.Public | BindingFlags.Static))
            Console.WriteLine("constant " + constant.Name + " " + constant.GetRawConstantValue());
    }

    private static int Main()
    {
        CheckTexts();
        CheckControl();
        TellFunctions();
        TellRecords();
        TellConstants();
        return failures == 0 ? 0 : 1;
    }
}
