"""Statuses as exceptions."""

import unittest

import OmbraSdkV2Helper as sdk


class CheckTest(unittest.TestCase):

    def test_a_refusal_says_what_it_means(self):
        with self.assertRaises(sdk.SdkError) as caught:
            sdk.check(sdk.bcm_vlan_create(99, 1))
        error = caught.exception
        self.assertEqual((error.status, error.name), (-3, 'BCM_E_UNIT'))
        self.assertEqual(str(error),
                         'BCM_E_UNIT (-3): there is no such unit')

    def test_every_status_of_the_sdk_has_a_meaning(self):
        for name, status in vars(sdk).iteritems():
            if name.startswith(('BCM_E_', 'SOC_E_')) and status < 0:
                error = sdk.SdkError(status)
                self.assertEqual(error.name[4:], name[4:])
                self.assertNotIn('unknown', error.meaning)
        self.assertIn('-99', str(sdk.SdkError(-99)))

    def test_what_is_left_of_a_result(self):
        for result, rest in ((0, 0), (5, 5), ([0, 7], 7), ((0, 'x'), 'x'),
                             ((0, 1, 2), (1, 2)), ((0,), ()), (None, None)):
            self.assertEqual(sdk.check(result), rest)
        for result in (-1, [-1, 7], (-1,), (-1, None, None)):
            self.assertRaises(sdk.SdkError, sdk.check, result)


if __name__ == '__main__':
    unittest.main()
