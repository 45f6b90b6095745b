#pragma once

/* The dialog of the proxies. Also read by the resource compiler: plain definitions only. */

#define IDD_VORN_PROXIES 1760
#define IDC_VORN_PROXY_LIST 1761
#define IDC_VORN_PROXY_TYPE 1762
#define IDC_VORN_PROXY_HOST 1763
#define IDC_VORN_PROXY_PORTS 1764
#define IDC_VORN_PROXY_USER 1765
#define IDC_VORN_PROXY_PASSWORD 1766
#define IDC_VORN_PROXY_CONFIRMATION 1767
#define IDC_VORN_PROXY_ADD 1768
#define IDC_VORN_PROXY_DELETE 1769
