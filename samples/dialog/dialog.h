#define IDD_STAY 1
#define IDC_ARRIVAL 101
#define IDC_NIGHTS 102
#define IDC_TOLD 103
