#include "screens/help/Lessons.h"

namespace lensbench::lessons {
namespace {

using light::Diafragma;

// Wide enough for every ray that meets the lens.
constexpr Diafragma open{-150.0, 150.0, -150.0};

// Both faces of radius 100, 40 thick: f = 107.14 at n = 1.50.
constexpr OnWorkbench strong(Diafragma diafragma) {
  return {.R1 = 100, .R2 = 100, .xc1 = -80, .xc2 = 80, .desmi1 = 80, .diafragma = diafragma};
}

// Both faces of radius 200, 40 thick: f = 206.90 at n = 1.50.
constexpr OnWorkbench weak(Diafragma diafragma) {
  return {.R1 = 200, .R2 = 200, .xc1 = -180, .xc2 = 180, .desmi1 = 80, .diafragma = diafragma};
}

constexpr OnWorkbench with(OnWorkbench bench, std::variant<Fan, Bundle, Marks> light) {
  bench.light = light;
  return bench;
}

constexpr OnWorkbench imageOf(Point source) {
  OnWorkbench bench = with(strong(open), Marks{});
  bench.source = source;
  return bench;
}

constexpr OnWorkbench thickLens() {
  return {.diafragma = open, .source = {-200.0, 40.0}, .light = Marks{}};
}

constexpr OnWorkbench bubble() {
  OnWorkbench bench = with(strong({-100.0, 12.0, -12.0}), Bundle{0.0});
  bench.n = 75;
  return bench;
}

constexpr OnWorkbench fronts() {
  OnWorkbench bench = with(weak({-100.0, 60.0, -60.0}), Bundle{0.0});
  bench.waves = true;
  return bench;
}

constexpr std::array<Lesson, 12> lessons{{
    {
        .title = {"Διάθλαση σε μια όψη", "Refraction at a face"},
        .see = {"Μια ακτίνα τρέχει παράλληλα στον άξονα, συναντά την αριστερή όψη του φακού και "
                "στρέφεται προς την κάθετη. Στη δεξιά όψη βγαίνει στον αέρα και απομακρύνεται από "
                "την κάθετη.",
                "A ray runs parallel to the axis, meets the left face of the lens and turns "
                "towards the normal. At the right face it comes out into the air and turns away "
                "from the normal."},
        .act = {"Άφησε τον δείκτη του ποντικιού ακίνητο εκεί όπου η ακτίνα μπαίνει στο γυαλί. Όταν "
                "ξεκινά το πρόγραμμα το διάφραγμα είναι κλειστό και σταματά κάθε ακτίνα: στην "
                "οθόνη των σφαιρικών φακών σύρε την πάνω λεπίδα προς τα πάνω και την κάτω προς τα "
                "κάτω. Το «Στήσε το» το ανοίγει για σένα.",
                "Rest the mouse pointer where the ray enters the glass. When the program starts, "
                "the diaphragm is closed and stops every ray: on the screen of the spherical "
                "lenses drag the upper blade up and the lower one down. “Set it up” opens it for "
                "you."},
        .look = {"Οι γωνίες είναι 23.58° στον αέρα και 15.47° στο γυαλί. Το γινόμενο n·sin a είναι "
                 "το ίδιο πριν και μετά: 0.40. Αυτός είναι ο νόμος της διάθλασης.",
                 "The angles are 23.58° in the air and 15.47° in the glass. The product n·sin a is "
                 "the same before and after: 0.40. That is the law of refraction."},
        .question = {"Πόση γίνεται η γωνία στο γυαλί, αν ο δείκτης γίνει 2.00;",
                     "What does the angle in the glass become when the index is made 2.00?"},
        .answer = {"11.54°, γιατί το ημίτονό της είναι 0.40 / 2.00 = 0.20.",
                   "11.54°, because its sine is 0.40 / 2.00 = 0.20."},
        .setup = OnSingleRay{.diafragma = open, .source = {-200.0, 40.0}, .aim = {0.0, 40.0}},
    },
    {
        .title = {"Εστιακή απόσταση", "Focal length"},
        .see = {"Μια λεπτή δέσμη παράλληλη στον άξονα περνά από τον φακό και συγκλίνει σε ένα "
                "σημείο του άξονα, την εστία.",
                "A narrow bundle parallel to the axis goes through the lens and gathers at one "
                "point of the axis, the focus."},
        .act = {"Πίεσε Shift και πάτησε μέσα στον φακό για να σημειωθούν τα κύρια σημεία του. "
                "Έπειτα στείλε πάλι τη δέσμη με «// BUNDLE  DESMH» και γωνία 0.",
                "Hold Shift and press inside the lens to mark its cardinal points. Then send the "
                "bundle again with “// BUNDLE  DESMH” and the angle 0."},
        .look = {"Η εστία F2 είναι στο x = 213.10 και η εστιακή απόσταση είναι f = 206.90. "
                 "Μετριέται από το κύριο επίπεδο H2, όχι από την όψη του φακού.",
                 "The focus F2 is at x = 213.10 and the focal length is f = 206.90. It is measured "
                 "from the principal plane H2, not from the face of the lens."},
        .question = {"Τι παθαίνει η f, αν ο δείκτης γίνει 2.00 αντί για 1.50;",
                     "What happens to f when the index is 2.00 instead of 1.50?"},
        .answer = {"Γίνεται περίπου η μισή, 105.26: ο φακός στρέφει τις ακτίνες ανάλογα με το "
                   "n − 1, που διπλασιάστηκε.",
                   "It becomes about half, 105.26: a lens turns rays in proportion to n − 1, which "
                   "has doubled."},
        .setup = with(weak({-100.0, 12.0, -12.0}), Bundle{0.0}),
    },
    {
        .title = {"Το είδωλο και η μεγέθυνσή του", "The image and its magnification"},
        .see = {"Τρεις ακτίνες ξεκινούν από την πηγή: μία παράλληλη στον άξονα, μία από την εστία "
                "F1 και μία από τα σημεία N. Εκεί όπου συναντιούνται σχηματίζεται το είδωλο.",
                "Three rays start from the source: one parallel to the axis, one through the focus "
                "F1 and one through the points N. Where they meet, the image is formed."},
        .act = {"Σημείωσε τη θέση του ειδώλου. Πίεσε Shift και πάτησε μακριά από τον φακό, πρώτα "
                "πιο κοντά και ύστερα πιο μακριά του· κάθε φορά πίεσε πάλι Shift και πάτησε μέσα "
                "στον φακό.",
                "Note where the image is. Hold Shift and press away from the lens, first nearer to "
                "it and then farther; each time hold Shift again and press inside the lens."},
        .look = {"Η πηγή απέχει δύο εστιακές αποστάσεις από το H1, στο (-220, 20). Το είδωλο είναι "
                 "πραγματικό, στο (220, -20): ανεστραμμένο και ίσο, με μεγέθυνση -1.00.",
                 "The source is two focal lengths away from H1, at (-220, 20). The image is real, "
                 "at (220, -20): upside down and of equal size, with magnification -1.00."},
        .question = {"Πού πρέπει να σταθεί η πηγή για να γίνει το είδωλο διπλάσιο;",
                     "Where must the source stand to make the image twice as large?"},
        .answer = {"Μιάμιση εστιακή απόσταση από το H1, στο x = -166.43. Το είδωλο πάει στο "
                   "x = 327.14.",
                   "One and a half focal lengths from H1, at x = -166.43. The image goes to "
                   "x = 327.14."},
        .setup = imageOf({-220.0, 20.0}),
    },
    {
        .title = {"Ένα φανταστικό είδωλο", "A virtual image"},
        .see = {"Η πηγή στέκεται πιο κοντά στον φακό από την εστία F1. Πίσω από τον φακό οι "
                "ακτίνες απομακρύνονται η μία από την άλλη και δεν συναντιούνται πουθενά.",
                "The source stands nearer to the lens than the focus F1. Behind the lens the rays "
                "move away from each other and meet nowhere."},
        .act = {"Πίεσε Shift και πάτησε στη θέση της πηγής για να δεις όλες τις ακτίνες της. Κοίτα "
                "από τα δεξιά: από πού φαίνονται να έρχονται;",
                "Hold Shift and press at the place of the source to see all of its rays. Look from "
                "the right: where do they seem to come from?"},
        .look =
            {"Προεκτεινόμενες προς τα πίσω συναντιούνται στο (-236.52, 65.22), αριστερά της "
             "πηγής. Το είδωλο είναι όρθιο, φανταστικό και 3.26 φορές μεγαλύτερο: έτσι δουλεύει "
             "ο μεγεθυντικός φακός.",
             "Drawn backwards they meet at (-236.52, 65.22), to the left of the source. The "
             "image is upright, virtual and 3.26 times as large: this is how a magnifying "
             "glass works."},
        .question = {"Μπορείς να πιάσεις αυτό το είδωλο πάνω σε χαρτί;",
                     "Can you catch this image on a sheet of paper?"},
        .answer =
            {"Όχι. Καμιά ακτίνα δεν περνά από εκεί· μόνο το μάτι, που τις δέχεται, το βλέπει.",
             "No. No ray passes there; only the eye that receives them sees it."},
        .setup = imageOf({-80.0, 20.0}),
    },
    {
        .title = {"Τα κύρια σημεία ενός παχιού φακού", "The cardinal points of a thick lens"},
        .see = {"Ο φακός έχει πάχος 120, όσο και η εστιακή του απόσταση. Τα δύο κύρια επίπεδα H1 "
                "και H2 δεν συμπίπτουν.",
                "The lens is 120 thick, as much as its focal length. The two principal planes H1 "
                "and H2 do not coincide."},
        .act = {"Ρώτησε με τον δείκτη του ποντικιού τα σημεία F2 και H2. Έπειτα στείλε δέσμη με "
                "γωνία 0 και στένεψε το διάφραγμα.",
                "Ask the points F2 and H2 with the mouse pointer. Then send a bundle with the "
                "angle 0 and narrow the diaphragm."},
        .look = {"Το F2 σημειώνεται στο x = 122.00, ενώ οι ακτίνες κοντά στον άξονα συναντιούνται "
                 "στο x = 116.67: 5.33 πιο κοντά στον φακό. Τα σημεία τοποθετούνται με τους "
                 "απλούς τύπους των βιβλίων, οι ακτίνες με τον ακριβή νόμο.",
                 "F2 is marked at x = 122.00, but rays near the axis meet at x = 116.67: 5.33 "
                 "nearer to the lens. The points are placed with the simple formulas of books, the "
                 "rays with the exact law."},
        .question = {"Για ποιους φακούς δεν υπάρχει διαφορά;",
                     "For which lenses is there no difference?"},
        .answer = {"Για εκείνους με ίσες ακτίνες, R1 = R2.", "For those of equal radii, R1 = R2."},
        .setup = thickLens(),
    },
    {
        .title = {"Σφαιρική εκτροπή", "Spherical aberration"},
        .see =
            {"Μια πλατιά παράλληλη δέσμη δεν συγκλίνει σε ένα σημείο: οι ακτίνες σχηματίζουν μια "
             "καμπύλη με μύτη.",
             "A wide parallel bundle does not gather at one point: its rays form a curve with a "
             "tip."},
        .act =
            {"Βρες πού κόβει τον άξονα μια ακτίνα κοντά στο κέντρο και πού μια κοντά στο χείλος.",
             "Find where a ray near the middle crosses the axis, and where one near the rim "
             "does."},
        .look = {"Η ακτίνα σε ύψος 10 κόβει τον άξονα στο x = 111.57, η ακτίνα σε ύψος 40 στο "
                 "x = 87.14. Όσο πιο μακριά από τον άξονα, τόσο πιο κοντά στον φακό.",
                 "The ray at height 10 crosses the axis at x = 111.57, the ray at height 40 at "
                 "x = 87.14. The farther from the axis, the nearer to the lens."},
        .question = {"Φταίει λάθος του προγράμματος;", "Is it an error of the program?"},
        .answer =
            {"Όχι. Οι σφαίρες κόβονται εύκολα, αλλά δεν είναι το σχήμα που μαζεύει μια δέσμη "
             "σε ένα σημείο. Το σχήμα αυτό το βρήκε ο Ιμπν Σαχλ.",
             "No. Spheres are easy to grind, but they are not the shape that gathers a bundle "
             "at one point. Ibn Sahl found that shape."},
        .setup = with(strong({-100.0, 42.0, -42.0}), Bundle{0.0}),
    },
    {
        .title = {"Στενεύοντας το διάφραγμα", "Stopping down"},
        .see = {"Ο ίδιος φακός και η ίδια δέσμη, με στενό διάφραγμα: περνούν μόνο οι ακτίνες κοντά "
                "στον άξονα.",
                "The same lens and the same bundle with a narrow diaphragm: only rays near the "
                "axis pass."},
        .act = {"Άνοιξε και στένεψε το διάφραγμα σύροντας τις λεπίδες του και στείλε κάθε φορά τη "
                "δέσμη πάλι.",
                "Open and narrow the diaphragm by dragging its blades, and send the bundle again "
                "each time."},
        .look = {"Με άνοιγμα 24 οι ακτίνες κόβουν τον άξονα από το x = 111.57 ως το 112.54, δηλαδή "
                 "μέσα σε 0.97. Με άνοιγμα 84 απλώνονταν από το 87.14, σε πάνω από 25.",
                 "With an opening of 24 the rays cross the axis from x = 111.57 to 112.54, within "
                 "0.97. With an opening of 84 they spread from 87.14, over more than 25."},
        .question = {"Τι χάνει μια φωτογραφική μηχανή που στενεύει το διάφραγμά της;",
                     "What does a camera lose that narrows its diaphragm?"},
        .answer = {"Φως: περνούν λιγότερες ακτίνες. Κερδίζει καθαρότερη εικόνα.",
                   "Light: fewer rays pass. It gains a sharper picture."},
        .setup = with(strong({-100.0, 12.0, -12.0}), Bundle{0.0}),
    },
    {
        .title = {"Ολική ανάκλαση", "Total reflection"},
        .see = {"Η πηγή είναι μέσα στο γυαλί. Η ακτίνα φτάνει στη δεξιά όψη τόσο πλάγια, ώστε δεν "
                "μπορεί να βγει.",
                "The source is inside the glass. The ray reaches the right face so obliquely that "
                "it cannot leave."},
        .act =
            {"Ρώτησε με τον δείκτη του ποντικιού το τέλος της ακτίνας. Έπειτα στείλε από την ίδια "
             "πηγή μια ακτίνα πιο κοντά στον άξονα.",
             "Ask the end of the ray with the mouse pointer. Then send a ray nearer to the axis "
             "from the same source."},
        .look =
            {"Η γωνία είναι 48.5°, μεγαλύτερη από την κρίσιμη των 41.8°. Το ημίτονο της κρίσιμης "
             "γωνίας είναι 1 / n.",
             "The angle is 48.5°, more than the critical angle of 41.8°. The sine of the "
             "critical angle is 1 / n."},
        .question = {"Θα έβγαινε η ίδια ακτίνα από γυαλί με δείκτη 1.20;",
                     "Would the same ray leave a glass of index 1.20?"},
        .answer = {"Ναι: εκεί η κρίσιμη γωνία είναι 56.4°.",
                   "Yes: there the critical angle is 56.4°."},
        .setup = OnSingleRay{.diafragma = open, .source = {75.0, 0.0}, .aim = {97.0, 45.0}},
    },
    {
        .title = {"Φακός με μικρότερο δείκτη από το γύρω του",
                  "A lens of less index than its surroundings"},
        .see =
            {"Μια φυσαλίδα αέρα μέσα στο νερό, με σχετικό δείκτη 0.75: ο αμφίκυρτος φακός ανοίγει "
             "τη δέσμη αντί να τη μαζεύει.",
             "A bubble of air in water, of relative index 0.75: the biconvex lens spreads the "
             "bundle instead of gathering it."},
        .act = {"Άλλαξε τον δείκτη από 0.75 σε 1.50 και στείλε πάλι τη δέσμη με γωνία 0.",
                "Change the index from 0.75 to 1.50 and send the bundle again with the angle 0."},
        .look = {"Η εστιακή απόσταση είναι αρνητική, f = -187.50, και οι ακτίνες φαίνονται να "
                 "έρχονται από το x = -192.50, μπροστά από τον φακό.",
                 "The focal length is negative, f = -187.50, and the rays seem to come from "
                 "x = -192.50, in front of the lens."},
        .question = {"Τι σχήμα πρέπει να έχει μια φυσαλίδα για να μαζεύει το φως;",
                     "What shape must a bubble have to gather light?"},
        .answer = {"Λεπτότερη στη μέση από ό,τι στο χείλος: αμφίκοιλη.",
                   "Thinner in the middle than at the rim: biconcave."},
        .setup = bubble(),
    },
    {
        .title = {"Μέτωπα που περνούν από φακό", "Fronts through a lens"},
        .see = {"Μαζί με τις ακτίνες φαίνονται και τα μέτωπα του κύματος: γραμμές με ίσο οπτικό "
                "δρόμο, παντού κάθετες στις ακτίνες.",
                "Along with the rays you see the fronts of the wave: lines of equal optical path, "
                "everywhere square to the rays."},
        .act =
            {"Διάλεξε «// WAVES  KYMATA» και δες το κύμα να περνά. Με το διάστημα σταματά, με την "
             "τελεία και το κόμμα προχωρά και γυρίζει ένα βήμα.",
             "Choose “// WAVES  KYMATA” and watch the wave pass. Space stops it, full stop and "
             "comma move it one step on and back."},
        .look = {"Στον αέρα τα μέτωπα απέχουν 10.00, στο γυαλί 6.67, δηλαδή 10 / 1.50. Πάνω στον "
                 "άξονα το φως διανύει 40 στο γυαλί, που μετρούν για 60: βγαίνει 20 πίσω από το "
                 "φως που δεν πέρασε από τον φακό.",
                 "In the air the fronts are 10.00 apart, in the glass 6.67, which is 10 / 1.50. On "
                 "the axis light goes 40 in the glass, which count as 60: it comes out 20 behind "
                 "light that did not pass the lens."},
        .question = {"Γιατί λοιπόν καμπυλώνονται τα μέτωπα;", "Why then do the fronts bend?"},
        .answer = {"Γιατί στη μέση το γυαλί είναι παχύτερο και το φως καθυστερεί περισσότερο από "
                   "ό,τι στο χείλος.",
                   "Because in the middle the glass is thicker and holds the light up longer than "
                   "at the rim."},
        .setup = fronts(),
    },
    {
        .title = {"Ο νόμος του Ιμπν Σαχλ και οι φακοί του", "Ibn Sahl’s law and his lenses"},
        .see =
            {"Γύρω στο έτος 984 ο Ιμπν Σαχλ βρήκε τον νόμο της διάθλασης και τον φακό που μαζεύει "
             "μια παράλληλη δέσμη σε ένα σημείο: η όψη του είναι υπερβολή με εκκεντρότητα ίση "
             "με τον δείκτη.",
             "Around the year 984 Ibn Sahl found the law of refraction and the lens that "
             "gathers a parallel bundle at one point: its face is a hyperbola whose "
             "eccentricity equals the index."},
        .act = {"Σύγκρινε με τη σφαιρική εκτροπή του μαθήματος 6. Άλλαξε τον δείκτη στο μενού των "
                "φακών και άνοιξε τον φακό πάλι.",
                "Compare with the spherical aberration of lesson 6. Change the index in the menu "
                "of the lenses and open the lens again."},
        .look = {"Όλες οι ακτίνες, και οι πιο απομακρυσμένες, περνούν από το (-18.00, 0.00), την "
                 "άλλη εστία της υπερβολής: c = n·a = 1.50·12.",
                 "All rays, the outermost too, pass through (-18.00, 0.00), the other focus of the "
                 "hyperbola: c = n·a = 1.50·12."},
        .question = {"Πού συναντιούνται οι ακτίνες για δείκτη 2.00;",
                     "Where do the rays meet for an index of 2.00?"},
        .answer = {"Στο (-24.00, 0.00), γιατί c = 2.00·12.",
                   "At (-24.00, 0.00), because c = 2.00·12."},
        .setup = OnIbnSahl{.diafragma = {130.0, 10.0, -10.0}, .light = {0.0}},
    },
    {
        .title = {"Μια πλάγια δέσμη", "An oblique bundle"},
        .see = {"Μια λεπτή παράλληλη δέσμη με κλίση 10° μαζεύεται πάλι, αλλά έξω από τον άξονα.",
                "A narrow parallel bundle inclined by 10° gathers again, but off the axis."},
        .act = {"Στείλε με «// BUNDLE  DESMH» δέσμες με γωνίες 0, 5 και 10 και σημείωσε πού "
                "μαζεύεται η καθεμιά.",
                "Send bundles with the angles 0, 5 and 10 by “// BUNDLE  DESMH” and note where "
                "each of them gathers."},
        .look = {"Όλες μαζεύονται κοντά στο ίδιο εστιακό επίπεδο, x = 213.10. Η πλάγια περνά από "
                 "αυτό σε ύψος περίπου 36.5, που είναι f·tan 10°.",
                 "All gather near the same focal plane, x = 213.10. The oblique one passes it at a "
                 "height of about 36.5, which is f·tan 10°."},
        .question = {"Ποια μακρινά πράγματα στέλνουν τέτοιες δέσμες;",
                     "Which distant things send such bundles?"},
        .answer =
            {"Κάθε μακρινό σημείο, για παράδειγμα ένα άστρο: η διεύθυνσή του γίνεται θέση στο "
             "εστιακό επίπεδο.",
             "Every distant point, a star for example: its direction becomes a place in the "
             "focal plane."},
        .setup = with(weak({-25.0, 8.0, -18.0}), Bundle{10.0}),
    },
}};

}  // namespace

std::array<Part, 5> parts(const Lesson& lesson) {
  return {{{{"Τι βλέπεις", "What you see"}, lesson.see},
           {{"Τι κάνεις", "What to do"}, lesson.act},
           {{"Τι προσέχεις", "What to look for"}, lesson.look},
           {{"Ερώτηση", "Question"}, lesson.question},
           {{"Απάντηση", "Answer"}, lesson.answer}}};
}

std::span<const Lesson> all() { return lessons; }

}  // namespace lensbench::lessons
