#pragma once

/* Texts of the library that hosts may show as well; they are found through the resource chain.
   Also read by the resource compiler: plain definitions only. */

#define IDS_VORN_LIBRARY 60000

/* What quantities are called, by the user's choice of units */
#define IDS_VORN_DISTANCE 60010
#define IDS_VORN_SPEED 60011
#define IDS_VORN_FUEL 60012
#define IDS_VORN_MASS 60013
#define IDS_VORN_TEMPERATURE 60014
#define IDS_VORN_SHORT_DISTANCE 60015
#define IDS_VORN_PRESSURE 60016

/* Where a setting in force comes from */
#define IDS_VORN_FROM_REGISTRY 60020
#define IDS_VORN_FROM_INI 60021
#define IDS_VORN_FROM_DEFAULT 60022
