// Chance that is the same on every run: the numbers depend on nothing but the place they are asked for.
#ifndef RESOURCES_DRAW_NOISE_H
#define RESOURCES_DRAW_NOISE_H

// A number from 0 to 1 for a whole-numbered place; neighbours have nothing in common.
double chance(int x, int y);

// A smooth hilly field over the plane, from 0 to 1, with one hill or dip about each unit.
double noise(double x, double y);

// Noise with finer noise upon it, `layers` times, each twice as fine and half as high; again from 0 to 1.
double layeredNoise(double x, double y, int layers);

#endif
