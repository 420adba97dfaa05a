// The parts of the pages on physics: each computes its figures with the functions of the program,
// where exact optics is meant by a second way too, and demands them of the page.
#pragma once

#include "tests/docs/Page.h"

namespace lensbench::poreiaaktinon {

void sayUnits(Page& page);
void sayRays(Page& page);
void sayTotalReflection(Page& page);
void sayWaves(Page& page);
void sayReflectance(Page& page);
void sayFans(Page& page);
void sayBundles(Page& page);
void sayDiaphragm(Page& page);

void sayCardinalPoints(Page& page);
void sayAberration(Page& page);
void sayImage(Page& page);
void sayFocalCircles(Page& page);
void sayOutline(Page& page);

void sayLineAndCircle(Page& page);
void sayOneRefraction(Page& page);
void sayTolerances(Page& page);

}  // namespace lensbench::poreiaaktinon

namespace lensbench::protosfakos {

void sayLens(Page& page);
void sayCloseToTheAxis(Page& page);

void sayLaws(Page& page);

void sayIdealBundle(Page& page);
void sayFacesAsDrawn(Page& page);
void sayRaysOfScenes(Page& page);
void sayFronts(Page& page);
void sayFarAndNear(Page& page);

}  // namespace lensbench::protosfakos
