// ZtEdit.cs - masked edit controls for Windows Forms.
//
//     MaskedEdit due = new MaskedEdit { DataType = DataType.Date, Mask = "MM/DD/YYYY", Modern = true, Left = 20, Top = 20 };
//     due.StateChanged += (sender, e) => ok.Enabled = e.Is == ValueState.Complete;
//     form.Controls.Add(due);
//     DateTime? day = due.DateValue;
//
// Native holds what ztedit.h, ztshared.h and ztdecimal.h declare, under the same names; the contracts stand in the headers. The three DLLs
// of the program's own width (32 or 64 bits) stand beside it.
using System;
using System.ComponentModel;
using System.Globalization;
using System.Runtime.InteropServices;
using System.Windows.Forms;

namespace ZtEdit
{
    [StructLayout(LayoutKind.Sequential)]
    public struct DateTimeValue
    {
        public uint microsecond;
        public short year;
        public sbyte month;
        public sbyte day;
        public sbyte hour;
        public sbyte minute;
        public sbyte second;
        public sbyte spare;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct DecimalValue
    {
        public ushort reserved;
        public byte scale;
        public byte sign;
        public uint hi32;
        public ulong lo64;
    }

    [StructLayout(LayoutKind.Sequential, CharSet = CharSet.Ansi)]
    public struct EditInitParams
    {
        public IntPtr heap;
        public uint heapFlags;
        public uint reserved;
        public string maskText;
        public int dataType;
        public string initialData;
        public string spinRangeText;
        public uint spinIncrement;
        public string codeTableText;
        public uint options;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct FormatResult
    {
        public IntPtr text;
        public uint formatFlags;
        public int firstFieldPos;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct NMHDR
    {
        public IntPtr hwndFrom;
        public UIntPtr idFrom;
        public uint code;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct ZTNotifyRejected
    {
        public NMHDR hdr;
        public int reason;
        public int position;
        public int character;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct ZTNotifyState
    {
        public NMHDR hdr;
        public int was;
        public int @is;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct SharedHeapWatcher
    {
        public IntPtr ending;  // a pointer from Marshal.GetFunctionPointerForDelegate, of a delegate that is kept
        public IntPtr previous;
        public IntPtr next;
    }

    public static class Native
    {
        public const string EditLibrary = "ztedit050.dll";
        public const string SharedLibrary = "ztshared.dll";
        public const string DecimalLibrary = "ztdecimal.dll";

        public const string ZTEDIT_CLASS = "ZTEDIT050";

        public const int ZTEDIT_VERSION_MAJOR = 0;
        public const int ZTEDIT_VERSION_MINOR = 5;
        public const int ZTEDIT_VERSION_PATCH = 0;
        public const uint ZTEDIT_VERSION = 0x000500;

        // Data types
        public const int DT_STRING = 1;
        public const int DT_NUMBER = 2;
        public const int DT_DATE = 3;
        public const int DT_TIME = 4;
        public const int DT_DATETIME = 5;
        public const int DT_DECIMAL = 6;

        public const int DATETIME_NO_DATE = -32767;
        public const int DATETIME_NO_TIME = -1;
        public const int DATETIME_KIND_BOTH = 1;
        public const int DATETIME_KIND_DATE = 2;
        public const int DATETIME_KIND_TIME = 3;

        public const int SHARED_FORMAT_SIZE = 256;

        // FormatResult.formatFlags
        public const uint FORMAT_DONE = 0x0001;
        public const uint FORMAT_HAS_LITERALS = 0x4000;
        public const uint FORMAT_LITERAL_AFTER = 0x8000;

        public const uint SPINSTYLE_PICKLIST = 0x10000000;
        public const uint SPINSTYLE_CODETABLE = 0x08000000;

        // EditInitParams.options
        public const uint ZTEO_AUTOSKIP = 0x1;
        public const uint ZTEO_SPIN = 0x2;
        public const uint ZTEO_CODE_PICK = 0x4;
        public const uint ZTEO_CODE_DISPLAY = 0x8;
        public const uint ZTEO_MODERN = 0x10;

        // ZTE_GetState
        public const int ZTS_EMPTY = 0;
        public const int ZTS_INCOMPLETE = 1;
        public const int ZTS_INVALID = 2;
        public const int ZTS_OUT_OF_RANGE = 3;
        public const int ZTS_COMPLETE = 4;

        // Why something was refused
        public const int ZTR_WRONG_KIND = 1;
        public const int ZTR_OUT_OF_BOUNDS = 2;
        public const int ZTR_FULL = 3;
        public const int ZTR_READ_ONLY = 4;
        public const int ZTR_DOES_NOT_FIT = 5;
        public const int ZTR_IN_DOUBT = 6;
        public const int ZTR_DOES_NOT_EXIST = 7;
        public const int ZTR_NO_SUCH_ENTRY = 8;
        public const int ZTR_END_OF_RANGE = 9;
        public const int ZTR_NOT_IN_CODE_PAGE = 10;

        // ZTE_GetLastProblem
        public const int ZTP_NONE = 0;
        public const int ZTP_NO_PARAMETERS = 1;
        public const int ZTP_NO_HEAP = 2;
        public const int ZTP_FOREIGN_HEAP = 3;
        public const int ZTP_NOT_SUBCLASSED = 4;
        public const int ZTP_WIDE_TEXTS = 5;
        public const int ZTP_DATA_TYPE = 6;
        public const int ZTP_MASK = 7;

        // ZTE_CheckMask
        public const int ZTM_FITS = 0;
        public const int ZTM_DATA_TYPE = 1;
        public const int ZTM_EMPTY = 2;
        public const int ZTM_TOO_LONG = 3;
        public const int ZTM_ESCAPE = 4;
        public const int ZTM_KEYWORD = 5;
        public const int ZTM_OUT_OF_PLACE = 6;
        public const int ZTM_TWICE = 7;
        public const int ZTM_FIELD_LENGTH = 8;
        public const int ZTM_EXCLUDED = 9;
        public const int ZTM_FIELD_MISSING = 10;
        public const int ZTM_NO_DIGIT = 11;

        // WM_COMMAND
        public const int ZTN_AUTOSKIP = 0x0903;
        // WM_NOTIFY
        public const int ZTN_REJECTED = 0x0904;
        public const int ZTN_STATECHANGED = 0x0905;

        // ztedit.h
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr ZTE_SuperEditWndProc(IntPtr hwnd, uint message, IntPtr wParam, IntPtr lParam);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern uint ZTE_Initialize();
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int ZTE_CheckMask(string mask, int dataType, out int position);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int ZTE_GetLastProblem(IntPtr hwnd);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int ZTE_Init(IntPtr hwnd, ref EditInitParams setup);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void ZTE_SetAutoskip(IntPtr hwnd, uint enable);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void ZTE_UtilSetFormatRect(IntPtr hwnd);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int ZTE_FmtSetMask(IntPtr hwnd, string mask, int dataType);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int ZTE_FmtSetData(IntPtr hwnd, IntPtr data);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int ZTE_FmtSetDataString(IntPtr hwnd, string text);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr ZTE_FmtGetData(IntPtr hwnd);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern ushort ZTE_FmtGetDataType(IntPtr hwnd);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr ZTE_FmtFormatData(IntPtr hwnd, IntPtr data);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr ZTE_FmtUnformatData(IntPtr hwnd, string text);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int ZTE_SetModern(IntPtr hwnd, int enable);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int ZTE_GetState(IntPtr hwnd);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int ZTE_TrySetDataString(IntPtr hwnd, string text);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr ZTE_GetDataString(IntPtr hwnd);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void ZTE_SetSpin(IntPtr hwnd, uint increment, string range, string codeTable, uint style);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void ZTE_CreateSpin(IntPtr hwnd);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void ZTE_DestroySpin(IntPtr hwnd);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void ZTE_PaintSpin(IntPtr hwnd, IntPtr dc, IntPtr rect);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern short ZTE_PaintSpinOnce(IntPtr rect, IntPtr dc);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern short ZTE_GetSpinWidth(IntPtr hwnd, IntPtr rect);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void ZTE_SetSpinBkColor(IntPtr hwnd, uint colour);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern short ZTE_SpinDateRange(IntPtr hwnd, ref DateTimeValue value, string text);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern short ZTE_SpinRangeCompare(IntPtr hwnd, IntPtr first, IntPtr second);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr ZTE_SpinWndProc(IntPtr hwnd, uint message, IntPtr wParam, IntPtr lParam);
        [DllImport(EditLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int WEP(int argument);

        // ztshared.h
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr SharedHeapCreate();
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void SharedHeapDestroy(IntPtr heap);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int SharedHeapIsAlive(IntPtr heap);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void SharedHeapWatch(IntPtr heap, IntPtr watcher);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void SharedHeapUnwatch(IntPtr heap, IntPtr watcher);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern uint SharedHeapBlockCount(IntPtr heap);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr SharedHeapAlloc(IntPtr heap, uint size, uint flags);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr SharedHeapRealloc(IntPtr heap, IntPtr block, uint size, uint flags);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void SharedHeapFree(IntPtr heap, IntPtr block);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr SharedHeapStrDup(IntPtr heap, string text, uint flags);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr SharedStrCopy(IntPtr destination, string source);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int SharedCharConvertOne(int character);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int SharedCharConvertTwo(int character);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int SharedIsNumber(string text);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr SharedListCreate(IntPtr heap, uint flags);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void SharedListDestroy(IntPtr list);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void SharedListAppend(IntPtr list, IntPtr element);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr SharedListFirst(IntPtr list);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr SharedListLast(IntPtr list);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr SharedListNext(IntPtr list);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr SharedListPrev(IntPtr list);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr SharedListCurrent(IntPtr list);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int SharedListTell(IntPtr list);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void SharedListSeek(IntPtr list, int position);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int SharedParseDateTime(ref DateTimeValue value, string text, int kind);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void SharedDateTimeNow(out DateTimeValue value);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int SharedCompileFormat(byte[] compiled, string format, int size);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int SharedFormatDouble(byte[] output, int size, byte[] compiled, double value, uint flags);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern int SharedFormatDecimal(byte[] output, int size, byte[] compiled, ref DecimalValue value, uint flags);
        [DllImport(SharedLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern void SharedReadRegionalSettings();

        // ztdecimal.h
        [DllImport(DecimalLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr DecFromString(out DecimalValue destination, string text, int decimalPlaces);
        [DllImport(DecimalLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr DecAdd(out DecimalValue destination, ref DecimalValue first, ref DecimalValue second);
        [DllImport(DecimalLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr DecSubtract(out DecimalValue destination, ref DecimalValue first, ref DecimalValue second);
        [DllImport(DecimalLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr DecDivide(out DecimalValue destination, ref DecimalValue first, ref DecimalValue second);
        [DllImport(DecimalLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern short DecCompare(ref DecimalValue first, ref DecimalValue second);
        [DllImport(DecimalLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr DecFromUnsigned(out DecimalValue destination, uint number);
        [DllImport(DecimalLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr DecSetZero(out DecimalValue destination);
        [DllImport(DecimalLibrary, CharSet = CharSet.Ansi, ExactSpelling = true, BestFitMapping = false)]
        public static extern IntPtr DecCopy(out DecimalValue destination, ref DecimalValue source);
    }

    public enum DataType
    {
        String = Native.DT_STRING,
        Number = Native.DT_NUMBER,
        Date = Native.DT_DATE,
        Time = Native.DT_TIME,
        DateTime = Native.DT_DATETIME,
        Decimal = Native.DT_DECIMAL
    }

    public enum ValueState
    {
        NoControl = -1,
        Empty = Native.ZTS_EMPTY,
        Incomplete = Native.ZTS_INCOMPLETE,
        Invalid = Native.ZTS_INVALID,
        OutOfRange = Native.ZTS_OUT_OF_RANGE,
        Complete = Native.ZTS_COMPLETE
    }

    // Why something was refused; None: it was not.
    public enum Reason
    {
        None = 0,
        WrongKind = Native.ZTR_WRONG_KIND,
        OutOfBounds = Native.ZTR_OUT_OF_BOUNDS,
        Full = Native.ZTR_FULL,
        ReadOnly = Native.ZTR_READ_ONLY,
        DoesNotFit = Native.ZTR_DOES_NOT_FIT,
        InDoubt = Native.ZTR_IN_DOUBT,
        DoesNotExist = Native.ZTR_DOES_NOT_EXIST,
        NoSuchEntry = Native.ZTR_NO_SUCH_ENTRY,
        EndOfRange = Native.ZTR_END_OF_RANGE,
        NotInCodePage = Native.ZTR_NOT_IN_CODE_PAGE
    }

    // Why a configuration fell back or was refused.
    public enum Problem
    {
        None = Native.ZTP_NONE,
        NoParameters = Native.ZTP_NO_PARAMETERS,
        NoHeap = Native.ZTP_NO_HEAP,
        ForeignHeap = Native.ZTP_FOREIGN_HEAP,
        NotSubclassed = Native.ZTP_NOT_SUBCLASSED,
        WideTexts = Native.ZTP_WIDE_TEXTS,
        DataType = Native.ZTP_DATA_TYPE,
        Mask = Native.ZTP_MASK
    }

    // What is wrong with a mask.
    public enum MaskFault
    {
        Fits = Native.ZTM_FITS,
        DataType = Native.ZTM_DATA_TYPE,
        Empty = Native.ZTM_EMPTY,
        TooLong = Native.ZTM_TOO_LONG,
        Escape = Native.ZTM_ESCAPE,
        Keyword = Native.ZTM_KEYWORD,
        OutOfPlace = Native.ZTM_OUT_OF_PLACE,
        Twice = Native.ZTM_TWICE,
        FieldLength = Native.ZTM_FIELD_LENGTH,
        Excluded = Native.ZTM_EXCLUDED,
        FieldMissing = Native.ZTM_FIELD_MISSING,
        NoDigit = Native.ZTM_NO_DIGIT
    }

    public class RejectedEventArgs : EventArgs
    {
        public RejectedEventArgs(Reason reason, int position, char character)
        {
            Reason = reason;
            Position = position;
            Character = character;
        }

        public Reason Reason { get; private set; }
        public int Position { get; private set; }
        public char Character { get; private set; }  // '\0' for what was not typed
        public bool Handled { get; set; }            // true: no beep
    }

    public class StateChangedEventArgs : EventArgs
    {
        public StateChangedEventArgs(ValueState was, ValueState now)
        {
            Was = was;
            Is = now;
        }

        public ValueState Was { get; private set; }
        public ValueState Is { get; private set; }
    }

    // The canonical texts in which values go to the control and come back: the same under every mask and every setting of the system.
    // Empty, and null, are no value.
    public static class Canonical
    {
        private static readonly CultureInfo Culture = CultureInfo.InvariantCulture;
        private static readonly string[] TimeForms = { "HH:mm", "HH:mm:ss", "HH:mm:ss:FFFFFF" };

        public static string Of(DateTime value, DataType type)
        {
            string date = value.ToString("yyyy-MM-dd", Culture);
            return type == DataType.DateTime ? date + " " + Of(value.TimeOfDay) : date;
        }

        public static string Of(TimeSpan value)
        {
            DateTime moment = DateTime.MinValue + value;
            bool whole = value.Ticks % TimeSpan.TicksPerSecond == 0;
            return moment.ToString(whole ? "HH:mm:ss" : "HH:mm:ss:ffffff", Culture);
        }

        // The fewest digits that read as the same number, never with an exponent.
        public static string Of(double value)
        {
            string shortest = value.ToString("R", Culture);
            decimal exact;
            if (shortest.IndexOf('E') < 0)
                return shortest;
            return decimal.TryParse(shortest, NumberStyles.Float, Culture, out exact) ? Of(exact) : value.ToString("F0", Culture);
        }

        public static string Of(decimal value)
        {
            return value.ToString(Culture);
        }

        // A value of any of the types above, or a text as it is.
        public static string OfObject(object value, DataType type)
        {
            if (value is DateTime)
                return Of((DateTime)value, type);
            if (value is TimeSpan)
                return Of((TimeSpan)value);
            if (value is double)
                return Of((double)value);
            if (value is string)
                return (string)value;
            return value == null ? "" : Of(Convert.ToDecimal(value, Culture));
        }

        public static DateTime? ToDateTime(string text)
        {
            if (string.IsNullOrEmpty(text))
                return null;
            string[] parts = text.Split(new[] { ' ' }, 2);
            DateTime date;
            if (!DateTime.TryParseExact(parts[0], "yyyy-MM-dd", Culture, DateTimeStyles.None, out date))
                return null;
            TimeSpan? time = parts.Length == 2 ? ToTimeSpan(parts[1]) : TimeSpan.Zero;
            return time == null ? (DateTime?)null : date + time.Value;
        }

        public static TimeSpan? ToTimeSpan(string text)
        {
            DateTime moment;
            bool read = DateTime.TryParseExact(text, TimeForms, Culture, DateTimeStyles.NoCurrentDateDefault, out moment);
            return read ? moment.TimeOfDay : (TimeSpan?)null;
        }

        public static double? ToDouble(string text)
        {
            double value;
            return double.TryParse(text, NumberStyles.Float, Culture, out value) ? value : (double?)null;
        }

        public static decimal? ToDecimal(string text)
        {
            decimal value;
            return decimal.TryParse(text, NumberStyles.Float, Culture, out value) ? value : (decimal?)null;
        }

        // The value of a control's type that a text stands for, as DateTime, TimeSpan, double, decimal or string.
        public static object ToObject(string text, DataType type)
        {
            switch (type)
            {
                case DataType.Date:
                case DataType.DateTime: return ToDateTime(text);
                case DataType.Time: return ToTimeSpan(text);
                case DataType.Number: return ToDouble(text);
                case DataType.Decimal: return ToDecimal(text);
                default: return text;
            }
        }
    }

    // The control. Its properties may be set before its window is there, and hold when Windows Forms makes it anew.
    public class MaskedEdit : Control
    {
        private const int WM_COMMAND_REFLECTED = 0x2000 + 0x0111;
        private const int WM_NOTIFY_REFLECTED = 0x2000 + 0x004E;
        private const int EN_CHANGE = 0x0300;
        private const int ES_AUTOHSCROLL = 0x0080;
        private const int WS_EX_CLIENTEDGE = 0x0200;

        private IntPtr heap;
        private DataType dataType = DataType.String;
        private string mask = "";
        private uint options;
        private uint spinIncrement = 1;
        private string spinRange;
        private string codeTable;
        private string kept = "";  // what is shown once the window is there

        static MaskedEdit()
        {
            Native.ZTE_Initialize();  // the class is there from then on
        }

        public MaskedEdit()
        {
            SetStyle(ControlStyles.UserPaint | ControlStyles.StandardClick | ControlStyles.UseTextForAccessibility, false);
        }

        public event EventHandler<RejectedEventArgs> Rejected;
        public event EventHandler<StateChangedEventArgs> StateChanged;
        public event EventHandler AutoSkip;
        public event EventHandler ValueChanged;

        // Both before the window is there, and as ZTE_FmtSetMask afterwards, which empties the value.
        [DefaultValue(DataType.String)]
        public DataType DataType
        {
            get { return dataType; }
            set { SetMask(mask, value); }
        }

        [DefaultValue("")]
        public string Mask
        {
            get { return mask; }
            set { SetMask(value, dataType); }
        }

        // Without a control: whether a mask fits a type, and where in it what does not fit stands (-1 where all does).
        public static MaskFault CheckMask(string mask, DataType type, out int position)
        {
            return (MaskFault)Native.ZTE_CheckMask(mask, (int)type, out position);
        }

        // Whether the mask fits the type; otherwise the type's default stands in.
        public bool SetMask(string newMask, DataType newType)
        {
            mask = newMask ?? "";
            dataType = newType;
            return !IsHandleCreated || Native.ZTE_FmtSetMask(Handle, mask, (int)dataType) != 0;
        }

        [DefaultValue(false)]
        public bool Modern
        {
            get { return HasOption(Native.ZTEO_MODERN); }
            set
            {
                SetOption(Native.ZTEO_MODERN, value);
                if (IsHandleCreated)
                    Native.ZTE_SetModern(Handle, value ? 1 : 0);
            }
        }

        // Whether AutoSkip is raised when the last position is filled.
        [DefaultValue(false)]
        public bool SkipsWhenFull
        {
            get { return HasOption(Native.ZTEO_AUTOSKIP); }
            set
            {
                SetOption(Native.ZTEO_AUTOSKIP, value);
                if (IsHandleCreated)
                    Native.ZTE_SetAutoskip(Handle, value ? 1u : 0u);
            }
        }

        // A spin with a range "minimum~maximum", or null for none.
        public void SetSpin(uint increment, string range)
        {
            spinIncrement = increment;
            spinRange = range;
            SetOption(Native.ZTEO_SPIN, true);
            RecreateWindow();
        }

        // Only the entries of a code table: "shown\tvalue/shown\tvalue", chosen by their letters or by the spin.
        public void SetChoices(string table)
        {
            codeTable = table;
            SetOption(Native.ZTEO_SPIN | Native.ZTEO_CODE_PICK | Native.ZTEO_CODE_DISPLAY, true);
            RecreateWindow();
        }

        [Browsable(false)]
        public ValueState State
        {
            get { return IsHandleCreated ? (ValueState)Native.ZTE_GetState(Handle) : ValueState.NoControl; }
        }

        // Why the control is not the one that was asked for: a mask that does not fit its type, whose default stands in; or why its
        // window is a plain edit, whose State is NoControl.
        [Browsable(false)]
        public Problem LastProblem
        {
            get { return IsHandleCreated ? (Problem)Native.ZTE_GetLastProblem(Handle) : Problem.None; }
        }

        // The value as canonical text: "" for the empty one, null for an incomplete or invalid one.
        [Browsable(false)]
        public string CanonicalText
        {
            get { return IsHandleCreated ? Take(Native.ZTE_GetDataString(Handle)) : kept; }
        }

        // The value as the type's own: DateTime, TimeSpan, double, decimal or string; null where there is none. Setting one that the
        // control cannot show throws an ArgumentException; TrySetValue says why instead.
        [Browsable(false), DesignerSerializationVisibility(DesignerSerializationVisibility.Hidden)]
        public object Value
        {
            get { return Canonical.ToObject(CanonicalText, dataType); }
            set
            {
                Reason reason = TrySetValue(value);
                if (reason != Reason.None)
                    throw new ArgumentException("The control cannot show this value: " + reason, "value");
            }
        }

        [Browsable(false)]
        public DateTime? DateValue
        {
            get { return IsOf(DataType.Date) || IsOf(DataType.DateTime) ? Canonical.ToDateTime(CanonicalText) : null; }
        }

        [Browsable(false)]
        public TimeSpan? TimeValue
        {
            get { return IsOf(DataType.Time) ? Canonical.ToTimeSpan(CanonicalText) : null; }
        }

        [Browsable(false)]
        public double? NumberValue
        {
            get { return IsOf(DataType.Number) || IsOf(DataType.Decimal) ? Canonical.ToDouble(CanonicalText) : null; }
        }

        [Browsable(false)]
        public decimal? DecimalValue
        {
            get { return IsOf(DataType.Number) || IsOf(DataType.Decimal) ? Canonical.ToDecimal(CanonicalText) : null; }
        }

        // Null for the empty value; a text is canonical, or one that a user might paste. What is refused changes nothing. Before the window
        // is there nothing is refused.
        public Reason TrySetValue(object value)
        {
            string text = Canonical.OfObject(value, dataType);
            if (IsHandleCreated)
                return (Reason)Native.ZTE_TrySetDataString(Handle, text);
            kept = text;
            return Reason.None;
        }

        // The text shown, literals and all; set as ZTE_FmtSetDataString does.
        public override string Text
        {
            get { return IsHandleCreated ? base.Text : kept; }
            set
            {
                if (IsHandleCreated)
                    Native.ZTE_FmtSetDataString(Handle, value ?? "");
                else
                    kept = value ?? "";
            }
        }

        protected override CreateParams CreateParams
        {
            get
            {
                CreateParams made = base.CreateParams;
                made.ClassName = Native.ZTEDIT_CLASS;
                made.Caption = "";
                made.Style |= ES_AUTOHSCROLL;
                made.ExStyle |= WS_EX_CLIENTEDGE;
                return made;
            }
        }

        protected override System.Drawing.Size DefaultSize
        {
            get { return new System.Drawing.Size(120, 22); }
        }

        // Arrows are the control's, not the form's.
        protected override bool IsInputKey(Keys keyData)
        {
            Keys key = keyData & Keys.KeyCode;
            bool isArrow = key == Keys.Left || key == Keys.Right || key == Keys.Up || key == Keys.Down;
            return isArrow && (keyData & Keys.Alt) == 0 || base.IsInputKey(keyData);
        }

        protected override void OnHandleCreated(EventArgs e)
        {
            heap = Native.SharedHeapCreate();
            EditInitParams setup = new EditInitParams
            {
                heap = heap,
                maskText = mask,
                dataType = (int)dataType,
                initialData = kept.Length == 0 ? null : kept,
                spinRangeText = spinRange,
                spinIncrement = spinIncrement,
                codeTableText = codeTable,
                options = options
            };
            Native.ZTE_Init(Handle, ref setup);
            base.OnHandleCreated(e);
        }

        // The window may be made anew, for another style: what it has shown is kept for the next one.
        protected override void OnHandleDestroyed(EventArgs e)
        {
            kept = CanonicalText ?? base.Text;
            base.OnHandleDestroyed(e);
            Native.SharedHeapDestroy(heap);
            heap = IntPtr.Zero;
        }

        protected override void WndProc(ref Message m)
        {
            switch (m.Msg)
            {
                case WM_COMMAND_REFLECTED: OnCommand((int)(m.WParam.ToInt64() >> 16) & 0xFFFF); break;
                case WM_NOTIFY_REFLECTED: OnNotify(ref m); break;
                default: base.WndProc(ref m); break;
            }
        }

        protected virtual void OnRejected(RejectedEventArgs e)
        {
            if (Rejected != null)
                Rejected(this, e);
        }

        protected virtual void OnStateChanged(StateChangedEventArgs e)
        {
            if (StateChanged != null)
                StateChanged(this, e);
        }

        protected virtual void OnAutoSkip(EventArgs e)
        {
            if (AutoSkip != null)
                AutoSkip(this, e);
        }

        protected virtual void OnValueChanged(EventArgs e)
        {
            if (ValueChanged != null)
                ValueChanged(this, e);
        }

        private void OnCommand(int code)
        {
            if (code == Native.ZTN_AUTOSKIP)
                OnAutoSkip(EventArgs.Empty);
            if (code != EN_CHANGE)
                return;
            OnTextChanged(EventArgs.Empty);
            OnValueChanged(EventArgs.Empty);
        }

        private void OnNotify(ref Message m)
        {
            NMHDR header = (NMHDR)Marshal.PtrToStructure(m.LParam, typeof(NMHDR));
            if (header.code == Native.ZTN_REJECTED)
            {
                ZTNotifyRejected told = (ZTNotifyRejected)Marshal.PtrToStructure(m.LParam, typeof(ZTNotifyRejected));
                RejectedEventArgs e = new RejectedEventArgs((Reason)told.reason, told.position, CharacterOf(told.character));
                OnRejected(e);
                m.Result = (IntPtr)(e.Handled ? 1 : 0);
            }
            else if (header.code == Native.ZTN_STATECHANGED)
            {
                ZTNotifyState told = (ZTNotifyState)Marshal.PtrToStructure(m.LParam, typeof(ZTNotifyState));
                OnStateChanged(new StateChangedEventArgs((ValueState)told.was, (ValueState)told.@is));
            }
        }

        // The control hears and tells characters of the system's code page.
        private static char CharacterOf(int character)
        {
            return character == 0 ? '\0' : System.Text.Encoding.Default.GetChars(new[] { (byte)character })[0];
        }

        private bool IsOf(DataType type)
        {
            return dataType == type;
        }

        private bool HasOption(uint option)
        {
            return (options & option) != 0;
        }

        private void SetOption(uint option, bool on)
        {
            options = on ? options | option : options & ~option;
        }

        private void RecreateWindow()
        {
            if (IsHandleCreated)
                RecreateHandle();
        }

        // A result of the library as a string; its block goes back to the heap.
        private string Take(IntPtr block)
        {
            string text = Marshal.PtrToStringAnsi(block);
            Native.SharedHeapFree(heap, block);
            return text;
        }
    }
}
